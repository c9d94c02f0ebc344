#pragma once

#include <string_view>

namespace tessarondel {

enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageIcon { Information, Critical, Question };
enum class MessageAnswer { Ok, Yes, No, Cancel };

// The desktop's modal message box: text, title, buttons and icon in, the
// button pressed out. Tests script the answers.
class MessageBox {
public:
    virtual MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                               MessageIcon icon) = 0;

protected:
    ~MessageBox() = default;
};

}  // namespace tessarondel
