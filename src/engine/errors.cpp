#include "engine/errors.h"

#include <array>
#include <string>

#include "engine/engine.h"

namespace tessarondel {

namespace {

constexpr std::array<std::u16string_view, 13> LowMessages = {
    u"Syntax error in the expression!",
    u"Brackets mismatch!",
    u"The expression is empty!",
    u"There are some invalid identifiers in the expression!",
    u"Undefined functions or the identifiers of the variables are invalid!",
    u"The parameters of the functions or operators are invalid!",
    u"Overflow error!",
    u"Can not redefine the system constants!",
    u"The identifier's name is invalid!",
    u"Redefine the custom functions!",
    u"There are some recursion members in the custom functions!",
    u"Base number converting error!",
    u"Can not set value to functions!",
};

constexpr std::u16string_view UnknownMessage = u"Unknown error!";

std::u16string DecimalText(int number) {
    const std::string digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

}  // namespace

std::u16string_view ErrorMessage(int number) {
    if (number >= 0 && number < static_cast<int>(LowMessages.size()))
        return LowMessages[static_cast<std::size_t>(number)];
    if (number == UnknownError) return UnknownMessage;
    return {};
}

void EngineState::ReportError(int number) {
    // The table ends at 99; a larger or negative number is a failure of the caller.
    if (number < 0 || number > UnknownError) throw RunFailure("error number out of range");
    if (!ErrorFlag) {
        if (ShowErrorBox && ShowMessageBox) {
            std::u16string text(u"ErrNum:");
            text.append(DecimalText(number)).append(u"\r\nErrInformation:").append(ErrorMessage(number));
            ShowMessageBox(text, ErrorBoxTitle);
        }
        ErrorFlag = true;
    }
    ErrorText = ErrorMessage(number);
    ErrorNumber = number;
}

}  // namespace tessarondel
