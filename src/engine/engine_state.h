#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/variable_listing.h"
#include "numbers/comma_texts.h"
#include "numbers/error_sink.h"
#include "numbers/slot_list.h"

namespace tessarondel {

// Text inside the engine is UTF-16. The design counts positions, lengths and its
// 16-bit limits (a text over 32,767 characters fails in CountChar) in 16-bit
// characters; std::u16string keeps those one-to-one. Front ends convert at the
// edge (ToUtf16/ToUtf8 in engine/text_codec.h).

enum TokenKind : int {
    TokenNone = 0,
    TokenOperator = 101,
    TokenFunction = 102,
    TokenNumber = 103,
    TokenIdentifier = 104,
};

struct VariableSlot {
    std::u16string name;
    double value = 0.0;
};

// A variable as the shell receives it: name and value text.
struct VariableRecord {
    std::u16string Name;
    std::u16string Value;
};

struct CustomFunctionParameter {
    std::u16string Name;
    std::u16string Value;
};

struct CustomFunctionEntry {
    std::u16string Name;
    SlotList<CustomFunctionParameter> Parameters;  // never got slots while there never were parameters
    std::u16string ParameterText;
    std::u16string Expression;
    std::u16string CompiledBody;
    bool NoParameters = false;
    std::u16string Description;
};

// The unread rest of the token stream. Reading consumes it from the front; we
// advance an offset instead of moving the text, so a long expression reads in
// linear time.
class TokenStreamText {
public:
    void Assign(std::u16string text) {
        text_ = std::move(text);
        start_ = 0;
    }
    // Hands over the text's storage for reuse; the stream is empty afterwards.
    std::u16string Release() {
        start_ = 0;
        return std::move(text_);
    }
    std::u16string_view Rest() const { return std::u16string_view(text_).substr(start_); }
    void Consume(std::size_t count) { start_ += count; }
    // Removes blanks at both ends of the rest.
    void TrimBlanks() {
        while (start_ < text_.size() && text_[start_] == u' ') ++start_;
        while (text_.size() > start_ && text_.back() == u' ') text_.pop_back();
    }
    // The push-back of the assignment look-ahead: token, a blank, the old rest.
    // The token was read from the consumed front, so it usually fits back there.
    void PushFront(std::u16string_view token) {
        const std::size_t length = token.size() + 1;
        if (start_ >= length && !Overlaps(token)) {
            start_ -= length;
            std::copy(token.begin(), token.end(), text_.begin() + static_cast<std::ptrdiff_t>(start_));
            text_[start_ + token.size()] = u' ';
            return;
        }
        std::u16string joined(token);
        joined += u' ';
        joined.append(Rest());
        Assign(std::move(joined));
    }

private:
    bool Overlaps(std::u16string_view view) const {
        return view.data() < text_.data() + text_.size() && text_.data() < view.data() + view.size();
    }

    std::u16string text_;
    std::size_t start_ = 0;
};

// Shows the engine's one message box (information icon, one OK button).
using ErrorBoxCallback = std::function<void(const std::u16string& text, const std::u16string& title)>;

// Everything the engine keeps. One instance per application, owned by the
// caller and passed explicitly. Fields start zero, empty or false: note that
// ApproximateBits 0 rounds to whole numbers, so front ends set -1 ("Off")
// before the first evaluation.
struct EngineState final : ErrorSink {
    bool ErrorFlag = false;
    std::int32_t ErrorNumber = 0;
    std::u16string ErrorText;
    bool ShowErrorBox = false;
    std::u16string ErrorBoxTitle;
    ErrorBoxCallback ShowMessageBox;

    double LastAnswer = 0.0;
    std::int32_t ApproximateBits = 0;

    std::vector<VariableSlot> VariableTable = std::vector<VariableSlot>(1);  // slot 0 is never used
    std::u16string VariableNames;                                            // "{x}{y}"
    VariableListingText VariableListing;

    SlotList<CustomFunctionEntry> CustomFunctionTable;
    std::u16string CustomFunctionNames;  // "{hyp}{area}"

    std::u16string ExpressionCopy;  // EvaluateText's working copy of the expression
    std::u16string SpareText;       // room that a pass of the token stream may swap with its text
    TokenStreamText TokenStream;
    std::u16string CurrentToken;
    int TokenKind = TokenNone;
    CommaTexts CommaList;
    std::vector<double> OpenListValues;  // the ladder's stack of the values of open comma lists

    // Records an error: the first one of an evaluation sets ErrorFlag (and shows
    // the box when ShowErrorBox is on), the last one decides number and text.
    void ReportError(int number) override;
};

}  // namespace tessarondel
