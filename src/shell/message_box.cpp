#include "shell/message_box.h"

namespace tessarondel {

void ShowNotice(MessageBox& box, std::u16string_view text, std::u16string_view title) {
    box.Show(text, title, MessageButtons::Ok, MessageIcon::Information);
}

bool Confirm(MessageBox& box, std::u16string_view text, std::u16string_view title) {
    return box.Show(text, title, MessageButtons::YesNoCancel, MessageIcon::Question) == MessageAnswer::Yes;
}

}  // namespace tessarondel
