#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageIcon { None, Information, Question, Critical };
enum class MessageAnswer { Ok, Yes, No, Cancel };

// A modal box: the desktop shows it and returns the button pressed; tests
// answer from a script.
class MessageBox {
public:
    virtual MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                               MessageIcon icon) = 0;

protected:
    ~MessageBox() = default;
};

// A notice: OK button and information icon.
void ShowNotice(MessageBox& box, std::u16string_view text, std::u16string_view title);

// A confirmation: Yes, No and Cancel with a question icon; only Yes goes on.
bool Confirm(MessageBox& box, std::u16string_view text, std::u16string_view title);

}  // namespace tessarondel
