#pragma once

#include <QWidget>
#include <filesystem>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace tessarondel {

// The manual in a window of the program's own: Contents, Back and Forward
// (also Alt+Left and Alt+Right), links, and a find bar on Ctrl+F that Esc
// closes. The keyboard focus stays in the page.
class HelpWindow final : public QWidget {
    Q_OBJECT
public:
    static constexpr const char* kTitle = "Tessarondel Help";

    explicit HelpWindow(QWidget* parent = nullptr);

    // Opens `page` as the contents page, then shows and raises the window.
    void ShowManual(const std::filesystem::path& page);

    QTextBrowser* Page() const { return page_; }
    QLineEdit* FindText() const { return findText_; }

private:
    QWidget* BuildNavigationBar();
    QWidget* BuildFindBar();
    void OpenFindBar();
    void CloseFindBar();
    // Searches from the cursor on, or back, wrapping round once.
    void Find(bool backward);

    QTextBrowser* page_ = nullptr;
    QWidget* findBar_ = nullptr;
    QLineEdit* findText_ = nullptr;
    QLabel* notFound_ = nullptr;
};

}  // namespace tessarondel
