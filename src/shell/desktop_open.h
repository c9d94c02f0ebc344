#pragma once

#include <string_view>

#include "shell/desktop_services.h"
#include "shell/message_box.h"

namespace tessarondel {

inline constexpr std::u16string_view kCanNotOpen = u"Can not open ";

// Asks the desktop to open `target`. When it can't (no handler, no opener
// program), a notice names what could not be opened, so the click is never
// silently lost. Returns whether the desktop took it.
bool OpenWithDesktop(ShellOpener& opener, MessageBox& box, std::u16string_view target);

}  // namespace tessarondel
