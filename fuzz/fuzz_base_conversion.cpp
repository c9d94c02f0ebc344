// Base conversion in both directions against a slow reference that does the
// arithmetic on exact big integers. The first byte chooses the direction:
// even bytes write a double (the next eight bytes) in a base of 2 to 16 with
// -2 to 61 decimals; odd bytes read the rest, as UTF-8, as a base literal.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "engine/text_codec.h"
#include "numbers/base_conversion.h"
#include "numbers/number_text.h"
#include "numbers/text_rules.h"

namespace {

using tessarondel::ToUtf8;

// A non-negative whole number of any size: 32-bit limbs, the lowest first.
class BigNumber {
public:
    explicit BigNumber(std::uint32_t value = 0) {
        if (value != 0) limbs_.push_back(value);
    }
    // A whole-numbered double, exactly.
    static BigNumber FromWholeDouble(double x) {
        int exponent = 0;
        const double fraction = std::frexp(x, &exponent);
        BigNumber n(0);
        if (x == 0) return n;
        const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
        n.limbs_ = {static_cast<std::uint32_t>(mantissa), static_cast<std::uint32_t>(mantissa >> 32)};
        n.Trim();
        for (int i = 53; i < exponent; ++i) n.MultiplyAdd(2, 0);
        for (int i = exponent; i < 53; ++i) n.DivideBy(2);
        return n;
    }
    bool IsZero() const { return limbs_.empty(); }
    void MultiplyAdd(std::uint32_t factor, std::uint32_t addend) {
        std::uint64_t carry = addend;
        for (std::uint32_t& limb : limbs_) {
            carry += static_cast<std::uint64_t>(limb) * factor;
            limb = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        if (carry != 0) limbs_.push_back(static_cast<std::uint32_t>(carry));
        Trim();
    }
    // Divides in place and returns the remainder.
    std::uint32_t DivideBy(std::uint32_t divisor) {
        std::uint64_t remainder = 0;
        for (std::size_t i = limbs_.size(); i-- > 0;) {
            const std::uint64_t current = (remainder << 32) | limbs_[i];
            limbs_[i] = static_cast<std::uint32_t>(current / divisor);
            remainder = current % divisor;
        }
        Trim();
        return static_cast<std::uint32_t>(remainder);
    }
    std::string Decimal() const {
        BigNumber rest = *this;
        std::string digits;
        do {
            digits.insert(digits.begin(), static_cast<char>('0' + rest.DivideBy(10)));
        } while (!rest.IsZero());
        return digits;
    }
    // The digits in `base`, at least one.
    std::string InBase(std::uint32_t base) const {
        BigNumber rest = *this;
        std::string digits;
        do {
            digits.insert(digits.begin(), "0123456789abcdef"[rest.DivideBy(base)]);
        } while (!rest.IsZero());
        return digits;
    }
    void Add(const BigNumber& other) {
        std::uint64_t carry = 0;
        limbs_.resize(std::max(limbs_.size(), other.limbs_.size()) + 1, 0);
        for (std::size_t i = 0; i < limbs_.size(); ++i) {
            carry += static_cast<std::uint64_t>(limbs_[i]) + (i < other.limbs_.size() ? other.limbs_[i] : 0);
            limbs_[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        Trim();
    }
    // The position of the highest set bit plus one; of the lowest set bit.
    int BitLength() const {
        return limbs_.empty() ? 0 : 32 * static_cast<int>(limbs_.size() - 1) + std::bit_width(limbs_.back());
    }
    int TrailingZeroBits() const {
        int zeros = 0;
        for (const std::uint32_t limb : limbs_) {
            if (limb != 0) return zeros + std::countr_zero(limb);
            zeros += 32;
        }
        return zeros;
    }
    long double Approximately() const {
        long double value = 0;
        for (std::size_t i = limbs_.size(); i-- > 0;) value = value * 4294967296.0L + limbs_[i];
        return value;
    }

private:
    void Trim() {
        while (!limbs_.empty() && limbs_.back() == 0) limbs_.pop_back();
    }
    std::vector<std::uint32_t> limbs_;
};

struct ErrorLog final : tessarondel::ErrorSink {
    bool syntax = false;      // error 0
    bool conversion = false;  // error 11
    void ReportError(int number) override {
        if (number == 0) syntax = true;
        if (number == 11) conversion = true;
    }
};

bool IsPowerOfTwo(std::uint32_t base) { return (base & (base - 1)) == 0; }
int BitsPerDigit(std::uint32_t base) { return base == 2 ? 1 : base == 4 ? 2 : base == 8 ? 3 : 4; }

void Check(bool rule) {
    if (!rule) std::abort();
}

// ---- Writing -------------------------------------------------------------

// The 15-digit decimal text of |x| as a whole number `digits` times 10^exponent.
struct Decimal {
    BigNumber digits;
    long exponent = 0;
};

Decimal ReadNumberText(const std::string& text) {
    Decimal d;
    const std::size_t e = text.find('E');
    const std::string mantissa = text.substr(0, e);
    if (e != std::string::npos) d.exponent = std::stol(text.substr(e + 1));
    const std::size_t point = mantissa.find('.');
    for (const char c : mantissa) {
        if (c != '.') d.digits.MultiplyAdd(10, static_cast<std::uint32_t>(c - '0'));
    }
    if (point != std::string::npos) d.exponent -= static_cast<long>(mantissa.size() - point - 1);
    return d;
}

BigNumber PowerOfTen(long exponent) {
    BigNumber power(1);
    for (long i = 0; i < exponent; ++i) power.MultiplyAdd(10, 0);
    return power;
}

// The digits of the binary fraction f (0 <= f < 1) in a base of 2^bits: its
// bits in groups, cut at `decimals` digits, at least one.
std::string FractionInBase(double f, int bits, int decimals) {
    int scale = 0;  // f = odd / 2^scale
    while (f != std::floor(f)) {
        f *= 2;
        ++scale;
    }
    const auto odd = static_cast<std::uint64_t>(f);
    std::string digits;
    int taken = 0;
    do {
        unsigned digit = 0;
        for (int i = 0; i < bits; ++i) {
            const int position = scale - ++taken;
            digit = 2 * digit + (position >= 0 && position < 64 ? (odd >> position) & 1 : 0);
        }
        digits += "0123456789abcdef"[digit];
    } while (scale > taken && static_cast<int>(digits.size()) < decimals);
    return digits;
}

void CheckWriting(double x, std::uint32_t base, int decimals) {
    ErrorLog errors;
    const std::string text =
        ToUtf8(tessarondel::NumberToBaseText(x, static_cast<std::int32_t>(base), decimals, errors));
    if (decimals < 0) {  // the format picture can't have fewer than no places
        Check(errors.conversion && text.empty());
        return;
    }
    // The fixed form: rounded at `decimals` places, ties away from zero, from the 15-digit text.
    const Decimal d = ReadNumberText(ToUtf8(tessarondel::TrimBlanks(tessarondel::NumberText(std::abs(x)))));
    BigNumber scaled = d.digits;
    const long shift = d.exponent + decimals;
    for (long i = 0; i < shift; ++i) scaled.MultiplyAdd(10, 0);
    if (shift < 0) {
        BigNumber half = PowerOfTen(-shift);
        half.DivideBy(2);
        scaled.Add(half);
        for (long i = 0; i < -shift; ++i) scaled.DivideBy(10);
    }
    std::string all = scaled.Decimal();
    if (all.size() <= static_cast<std::size_t>(decimals)) all.insert(0, decimals + 1 - all.size(), '0');
    const std::string whole = all.substr(0, all.size() - decimals);
    const std::string fraction = all.substr(all.size() - decimals);

    const double w = std::strtod(whole.c_str(), nullptr);
    if (std::isinf(w)) {  // beyond the double range: the conversion fails
        Check(errors.conversion && text.empty());
        return;
    }
    // Other bases divide and multiply with rounding: beyond 2^53 the remainder
    // may leave the 32-bit range (a conversion error), and the fraction's
    // digits depend on the rounding of each product.
    if (!IsPowerOfTwo(base) && (w > 9007199254740992.0 || decimals > 0)) return;
    Check(!errors.conversion);
    std::string expected = BigNumber::FromWholeDouble(w).InBase(base);
    if (decimals > 0) {
        expected += "." + FractionInBase(std::strtod(("0." + fraction).c_str(), nullptr), BitsPerDigit(base), decimals);
    }
    if (x < 0 && expected != "0") expected.insert(0, "-");
    Check(text == expected);
}

// ---- Reading -------------------------------------------------------------

void CheckReading(const std::u16string& token) {
    ErrorLog errors;
    const std::string text = ToUtf8(tessarondel::BaseLiteralToDecimal(token, errors));
    if (token.find(u'$') == std::u16string::npos) {
        Check(text == ToUtf8(token) && !errors.syntax && !errors.conversion);
        return;
    }
    const std::u16string prefix = tessarondel::AsciiLower(token.substr(0, std::min<std::size_t>(token.size(), 2)));
    const std::uint32_t base = token.size() < 3  ? 0
                               : prefix == u"$b" ? 2
                               : prefix == u"$o" ? 8
                               : prefix == u"$h" ? 16
                                                 : 0;
    if (base == 0) {
        Check(text.empty() && errors.syntax);
        return;
    }
    std::u16string digits = tessarondel::AsciiLower(tessarondel::TrimBlanks(token.substr(2)));
    digits = std::u16string(tessarondel::TrimBlanks(digits));
    const bool negative = digits.size() > 1 && digits[0] == u'-';
    if (negative) digits.erase(0, 1);
    const std::size_t point = digits.find(u'.');
    const std::u16string whole = digits.substr(0, point);
    const std::u16string fraction = point == std::u16string::npos ? u"" : digits.substr(point + 1);

    // The exact value: numerator / base^fraction digits.
    BigNumber numerator(0);
    bool invalid = false;
    for (const std::u16string* part : {&whole, &fraction}) {
        for (const char16_t c : *part) {
            const std::u16string_view hex = u"0123456789abcdef";
            const std::size_t value = hex.find(c);
            const bool valid = value != std::u16string_view::npos && value < base;
            invalid = invalid || !valid;
            numerator.MultiplyAdd(base, valid ? static_cast<std::uint32_t>(value) : 0);
        }
    }
    const int bits = BitsPerDigit(base);
    const long scale = static_cast<long>(fraction.size()) * bits;
    const long double value = std::ldexp(numerator.Approximately(), static_cast<int>(-scale));
    const long double limit = std::ldexp(1.0L, 1024);
    // Power(base, k) for the first digit overflows, whatever the digit; so does a sum beyond the range.
    const bool powerOverflows = !whole.empty() && static_cast<long>(whole.size() - 1) * bits >= 1024;
    if (powerOverflows || value >= limit) {
        Check(errors.conversion && text.empty());
        return;
    }
    if (value > limit * (1 - std::ldexp(1.0L, -40))) return;  // the rounding of the sum decides
    Check(!errors.conversion && errors.syntax == invalid);

    const std::string magnitude = negative && text.size() > 1 && text[0] == '-' ? text.substr(1) : text;
    // Exact when every partial sum is a normal double: at most 53 bits from the
    // highest set bit to the lowest, all within the normal range.
    const int lowest = numerator.TrailingZeroBits() - static_cast<int>(scale);
    const bool exact =
        numerator.IsZero() || (numerator.BitLength() - numerator.TrailingZeroBits() <= 53 && lowest >= -1022);
    const double asDouble = static_cast<double>(value);
    if (exact) {
        Check(magnitude == ToUtf8(tessarondel::TrimBlanks(tessarondel::NumberText(asDouble))));
    } else {
        // Each of the n additions rounds once; the text has 15 digits.
        const long double shown = std::strtold(magnitude.c_str(), nullptr);
        const auto n = static_cast<long double>(whole.size() + fraction.size() + 2);
        Check(std::fabs(shown - value) <= value * (1e-14L + n * std::ldexp(1.0L, -52)) + n * std::ldexp(1.0L, -1022));
    }
    Check((negative && magnitude != "0") == (text.size() > 0 && text[0] == '-'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    if (data[0] % 2 == 0) {
        if (size < 11) return 0;
        double x = 0;
        std::memcpy(&x, data + 1, sizeof x);
        if (!std::isfinite(x)) return 0;  // no infinity or NaN is ever a value
        CheckWriting(x, 2 + data[9] % 15, static_cast<int>(data[10] % 64) - 2);
    } else {
        CheckReading(tessarondel::ToUtf16(std::string_view(reinterpret_cast<const char*>(data + 1), size - 1)));
    }
    return 0;
}
