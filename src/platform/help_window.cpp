#include "platform/help_window.h"

#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "platform/app_icon.h"

namespace tessarondel {

namespace {

QToolButton* BarButton(const QString& caption, const QString& toolTip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setText(caption);
    button->setToolTip(toolTip);
    button->setAccessibleName(caption);
    button->setFocusPolicy(Qt::NoFocus);  // the focus stays in the page
    return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setWindowTitle(QString::fromLatin1(kTitle));
    setWindowIcon(AppIcon());
    page_ = new QTextBrowser(this);
    page_->setAccessibleName(QStringLiteral("Manual page"));
    page_->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(BuildNavigationBar());
    layout->addWidget(page_, 1);
    layout->addWidget(BuildFindBar());
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, page_, &QTextBrowser::backward);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, page_, &QTextBrowser::forward);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, &HelpWindow::OpenFindBar);
    resize(760, 620);
}

QWidget* HelpWindow::BuildNavigationBar() {
    auto* bar = new QWidget(this);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    QToolButton* contents = BarButton(tr("Contents"), tr("The manual's first page"), bar);
    QToolButton* back = BarButton(tr("Back"), tr("Back (Alt+Left)"), bar);
    QToolButton* forward = BarButton(tr("Forward"), tr("Forward (Alt+Right)"), bar);
    QToolButton* find = BarButton(tr("Find"), tr("Find in the page (Ctrl+F)"), bar);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QToolButton::clicked, page_, &QTextBrowser::home);
    connect(back, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, page_, &QTextBrowser::forward);
    connect(find, &QToolButton::clicked, this, &HelpWindow::OpenFindBar);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);
    for (QToolButton* button : {contents, back, forward, find}) layout->addWidget(button);
    layout->addStretch(1);
    return bar;
}

QWidget* HelpWindow::BuildFindBar() {
    findBar_ = new QWidget(this);
    auto* layout = new QHBoxLayout(findBar_);
    layout->setContentsMargins(0, 0, 0, 0);
    findText_ = new QLineEdit(findBar_);
    findText_->setPlaceholderText(tr("Find"));
    findText_->setAccessibleName(tr("Find text"));
    QToolButton* next = BarButton(tr("Next"), tr("Next match (Enter)"), findBar_);
    QToolButton* previous = BarButton(tr("Previous"), tr("Previous match (Shift+Enter)"), findBar_);
    QToolButton* close = BarButton(tr("Close"), tr("Close the find bar (Esc)"), findBar_);
    connect(findText_, &QLineEdit::returnPressed, this,
            [this] { Find((QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) != 0); });
    connect(next, &QToolButton::clicked, this, [this] { Find(false); });
    connect(previous, &QToolButton::clicked, this, [this] { Find(true); });
    connect(close, &QToolButton::clicked, this, &HelpWindow::CloseFindBar);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), findBar_);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &HelpWindow::CloseFindBar);
    notFound_ = new QLabel(tr("Not found"), findBar_);
    notFound_->hide();
    connect(findText_, &QLineEdit::textChanged, notFound_, &QWidget::hide);
    layout->addWidget(findText_, 1);
    layout->addWidget(notFound_);
    for (QToolButton* button : {next, previous, close}) layout->addWidget(button);
    findBar_->hide();
    return findBar_;
}

void HelpWindow::ShowManual(const std::filesystem::path& page) {
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(page.string()));
    if (page_->source() != url) {
        // The pages link their style sheet for web browsers; the text browser
        // takes it as the document's default instead.
        QFile css(QString::fromStdString((page.parent_path() / "manual.css").string()));
        if (css.open(QIODevice::ReadOnly)) page_->document()->setDefaultStyleSheet(QString::fromUtf8(css.readAll()));
        page_->setSource(url);
    }
    show();
    raise();
    activateWindow();
    page_->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::OpenFindBar() {
    findBar_->show();
    findText_->setFocus(Qt::ShortcutFocusReason);
    findText_->selectAll();
}

void HelpWindow::CloseFindBar() {
    findBar_->hide();
    page_->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::Find(bool backward) {
    const QString text = findText_->text();
    if (text.isEmpty()) return;
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (page_->find(text, flags)) return;
    QTextCursor wrapped = page_->textCursor();
    wrapped.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    page_->setTextCursor(wrapped);
    // Without this the bar looks the same whether the text is there or not.
    notFound_->setVisible(!page_->find(text, flags));
}

}  // namespace tessarondel
