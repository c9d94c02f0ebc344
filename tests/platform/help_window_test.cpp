#include "platform/help_window.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>

#include "platform/widget_harness.h"

namespace tessarondel::testing {
namespace {

void WritePage(const QString& file, const char* html) {
    QFile page(file);
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write(html);
}

HelpWindow* OpenHelpWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<HelpWindow*>(window); help != nullptr && help->isVisible()) return help;
    }
    return nullptr;
}

TEST(HelpWindow, F1WithoutHelpChmShowsTheManualWithHistoryAndFind) {
    MainWindowHarness harness;
    const QDir program(harness.programDirectory.path());
    ASSERT_TRUE(program.mkpath(QStringLiteral("manual")));
    WritePage(program.filePath(QStringLiteral("manual/index.html")), "<h1>Contents</h1><a href=\"keys.html\">Keys</a>");
    WritePage(program.filePath(QStringLiteral("manual/keys.html")), "<h1>The keyboard</h1>");
    harness.window.show();
    QApplication::setActiveWindow(&harness.window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&harness.window));

    QTest::keyClick(harness.window.txtIn(), Qt::Key_F1);
    HelpWindow* help = OpenHelpWindow();
    ASSERT_NE(help, nullptr);
    QApplication::setActiveWindow(help);  // offscreen windows don't activate themselves
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_EQ(help->windowTitle(), QStringLiteral("Tessarondel Help"));
    EXPECT_TRUE(help->Page()->toPlainText().startsWith(QStringLiteral("Contents")));
    EXPECT_EQ(QApplication::focusWidget(), help->Page());

    help->Page()->setSource(QUrl(QStringLiteral("keys.html")));  // as a click on the link does
    EXPECT_TRUE(help->Page()->toPlainText().startsWith(QStringLiteral("The keyboard")));
    QTest::keyClick(help->Page(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(help->Page()->toPlainText().startsWith(QStringLiteral("Contents")));

    QTest::keyClick(help->Page(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(help->FindText()->isVisible());
    QTest::keyClicks(help->FindText(), QStringLiteral("Keys"));
    QTest::keyClick(help->FindText(), Qt::Key_Return);
    EXPECT_EQ(help->Page()->textCursor().selectedText(), QStringLiteral("Keys"));
    EXPECT_FALSE(help->findChild<QLabel*>()->isVisible());
    QTest::keyClicks(help->FindText(), QStringLiteral("zz"));  // "Keyszz" is nowhere
    QTest::keyClick(help->FindText(), Qt::Key_Return);
    EXPECT_TRUE(help->findChild<QLabel*>()->isVisible());
    QTest::keyClick(help->FindText(), Qt::Key_Escape);
    EXPECT_FALSE(help->FindText()->isVisible());
    help->close();
}

TEST(HelpWindow, NeitherHelpChmNorTheManualGivesTheMissingFileNotice) {
    MainWindowHarness harness;
    const QString chm = QDir(harness.programDirectory.path()).filePath(QStringLiteral("help.chm"));
    harness.box.ExpectNotice(u"Can not find the file " + chm.toStdU16String(), u"Information");
    harness.model.ClickHelp();
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

}  // namespace
}  // namespace tessarondel::testing
