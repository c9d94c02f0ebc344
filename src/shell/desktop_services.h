#pragma once

#include <string>
#include <string_view>

namespace tessarondel {

// The small services of the desktop that the shell's logic needs. The desktop
// implements them; tests fake them.

class Clipboard {
public:
    virtual std::u16string GetText() = 0;
    virtual void SetText(std::u16string_view text) = 0;

protected:
    ~Clipboard() = default;
};

// The save dialog: empty initial name, no default extension, no question about
// an existing file. Returns the chosen file name, or the empty text on cancel.
class SaveFileDialog {
public:
    virtual std::u16string AskSaveFileName(std::u16string_view filter) = 0;

protected:
    ~SaveFileDialog() = default;
};

// Asks the desktop to open a document or URL with its default handler.
// Returns false when the desktop could not (no handler, no opener program).
class ShellOpener {
public:
    virtual bool ShellOpen(std::u16string_view target) = 0;

protected:
    ~ShellOpener() = default;
};

}  // namespace tessarondel
