#pragma once

#include <QString>

#include "shell/desktop_services.h"
#include "shell/message_box.h"

namespace tessarondel {

// The desktop's side of the shell's interfaces, with Qt.

class QtMessageBox final : public MessageBox {
public:
    MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                       MessageIcon icon) override;
};

class QtClipboard final : public Clipboard {
public:
    std::u16string GetText() override;
    void SetText(std::u16string_view text) override;
};

class QtSaveFileDialog final : public SaveFileDialog {
public:
    std::u16string AskSaveFileName(std::u16string_view filter) override;
};

// Local paths open as files, anything else as a URL (mailto:, http:).
class QtShellOpener final : public ShellOpener {
public:
    bool ShellOpen(std::u16string_view target) override;
};

// "Description(*.txt)|*.txt" pairs as Qt writes a filter: "Description(*.txt) (*.txt)".
QString ToQtFileFilter(std::u16string_view filter);

}  // namespace tessarondel
