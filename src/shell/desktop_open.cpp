#include "shell/desktop_open.h"

#include <string>

namespace tessarondel {

bool OpenWithDesktop(ShellOpener& opener, MessageBox& box, std::u16string_view target) {
    if (opener.ShellOpen(target)) return true;
    ShowNotice(box, std::u16string(kCanNotOpen) + std::u16string(target), u"Information");
    return false;
}

}  // namespace tessarondel
