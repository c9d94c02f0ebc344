#include "engine/exponent_scan.h"

#include <algorithm>

#include "engine/errors.h"
#include "engine/name_lists.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

// The scan never looks again at text behind a rewritten literal's exponent,
// and a rewrite never moves text in front of the mantissa. So the text is
// built once, left to right: `done` is the finished front, the rest is read
// from `source` at `next`.
class ExponentScan {
public:
    ExponentScan(EngineState& state, std::u16string_view source) : state_(state), source_(source) {
        done_.reserve(source_.size() + source_.size() / 2);
    }

    std::u16string Run() {
        while (true) {
            const std::size_t e = FindChar(source_, u'e', next_);
            if (e == std::u16string_view::npos) break;
            CopyUpTo(e);
            if (!AtExponent()) {
                CopyUpTo(e + 1);
                if (done_.size() + 1 >= Length()) break;  // nothing behind could be an exponent
                continue;
            }
            if (!RewriteLiteral()) break;
        }
        CopyUpTo(source_.size());
        return std::move(done_);
    }

private:
    std::size_t Length() const { return done_.size() + (source_.size() - next_); }

    void CopyUpTo(std::size_t end) {
        const std::u16string_view piece = source_.substr(next_, end - next_);
        dollarBehind_ = dollarBehind_ || FindChar(piece, u'$') != std::u16string_view::npos;
        done_.append(piece);
        next_ = end;
    }

    // The e at source_[next_] may start an exponent: not first, not last, a
    // digit or point before it, and no "$" anywhere in front of that.
    bool AtExponent() const {
        const std::size_t p = done_.size();
        if (p == 0 || p + 1 >= Length()) return false;
        return IsDigitChar(done_.back()) && !dollarBehind_;
    }

    bool RewriteLiteral() {
        const char16_t first = source_[next_ + 1];
        if (!IsDigitChar(first) && first != u'+' && first != u'-') return Fail();
        std::size_t mantissaStart = done_.size() - 1;
        while (mantissaStart > 0 && IsDigitChar(done_[mantissaStart - 1])) --mantissaStart;
        std::size_t exponentEnd = next_ + 2;
        while (exponentEnd < source_.size() && (IsDigitChar(source_[exponentEnd]) || source_[exponentEnd] == u' ')) {
            ++exponentEnd;
        }
        const std::u16string_view exponent(source_.data() + next_ + 1, exponentEnd - next_ - 1);
        const std::u16string_view mantissa(done_.data() + mantissaStart, done_.size() - mantissaStart);
        const auto mantissaPoints = std::count(mantissa.begin(), mantissa.end(), u'.');
        if (exponent.find(u'.') != std::u16string_view::npos) return Fail();
        if (mantissa == u"." || mantissaPoints > 1) return Fail();
        done_ += u"*(10^";
        done_ += exponent;
        done_ += u')';
        next_ = exponentEnd;
        return true;
    }

    bool Fail() {
        state_.ReportError(InvalidParameters);
        return false;
    }

    EngineState& state_;
    std::u16string_view source_;
    std::u16string done_;
    std::size_t next_ = 0;
    bool dollarBehind_ = false;
};

}  // namespace

void ScanExponents(EngineState& state, std::u16string& src) {
    TrimBlanksInPlace(src);
    if (FindChar(src, u'e') == std::u16string::npos) return;
    // A failure leaves the trimmed text.
    RunIgnoringFailures([&] { src = ExponentScan(state, src).Run(); });
}

}  // namespace tessarondel
