#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QWindow>

#include "platform/text_table_model.h"
#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

using testing::FindByAccessibleName;
using testing::MainWindowHarness;

QAbstractButton* ButtonWithText(QWidget& root, const QString& text) {
    for (auto* button : root.findChildren<QAbstractButton*>()) {
        if (button->text() == text) return button;
    }
    return nullptr;
}

void TypeAndEnter(QLineEdit* input, const QString& text) {
    QTest::keyClicks(input, text);
    QTest::keyClick(input, Qt::Key_Return);
}

TEST(MainWindow, EnterEvaluatesIntoDisplayAndAppendsARow) {
    MainWindowHarness h;
    QAbstractItemModelTester tester(h.window.ExpressionRows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    TypeAndEnter(h.window.txtIn(), QStringLiteral("2*(3+4)^2"));
    EXPECT_EQ(h.window.txtLEDResult()->text(), QStringLiteral("98"));
    EXPECT_TRUE(h.window.txtIn()->text().isEmpty());
    QTest::mouseClick(ButtonWithText(h.window, QStringLiteral("HEXadecimal")), Qt::LeftButton);
    QTest::mouseDClick(h.window.txtLEDResult(), Qt::LeftButton);
    EXPECT_EQ(h.window.txtIn()->text(), QStringLiteral("($H62)"));
    h.window.txtIn()->clear();
    TypeAndEnter(h.window.txtIn(), QStringLiteral(" 1/0 "));
    QAbstractItemModel* rows = h.window.ExpressionRows();
    ASSERT_EQ(rows->rowCount(), 2);
    EXPECT_EQ(rows->index(0, 0).data().toString(), QStringLiteral("1"));
    EXPECT_EQ(rows->index(0, 1).data().toString(), QStringLiteral("2*(3+4)^2"));
    EXPECT_EQ(rows->index(0, 2).data().toString(), QStringLiteral("98"));
    EXPECT_EQ(rows->index(1, 1).data().toString(), QStringLiteral("1/0"));
    EXPECT_TRUE(rows->index(1, 2).data().toString().startsWith(QStringLiteral("Error:")));
    EXPECT_EQ(rows->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Result"));
    h.box.ExpectQuestion(u"Really clear the expression list?", u"Information", MessageAnswer::Yes);
    QTest::mouseClick(FindByAccessibleName<QToolButton>(h.window, QStringLiteral("Clear the Expression List")),
                      Qt::LeftButton);
    EXPECT_EQ(rows->rowCount(), 0);
}

// The Input Area shows the model's selection, down to a single character.
TEST(MainWindow, InputAreaShowsTheSelectionOfItsModel) {
    MainWindowHarness h;
    for (std::size_t length : {0, 1, 2}) {
        h.model.EditInput(u"abc", 1, length);
        h.window.Apply(MainWindowChange::InputArea);
        EXPECT_EQ(h.window.txtIn()->selectedText(), QStringLiteral("abc").mid(1, int(length))) << length;
        EXPECT_EQ(h.window.txtIn()->cursorPosition(), 1 + int(length)) << length;
    }
}

// Stay on top changes the band of the shown window in place: never hidden,
// the same native window, where it was.
TEST(MainWindow, StayOnTopKeepsTheWindowInPlace) {
    MainWindowHarness h;
    h.window.show();
    h.window.move(120, 80);
    const WId native = h.window.winId();
    QSignalSpy shownOrHidden(h.window.windowHandle(), &QWindow::visibleChanged);
    for (bool onTop : {true, false}) {
        h.model.ClickOption(OptionStayOnTop);
        QCoreApplication::processEvents();
        EXPECT_EQ(h.window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint), onTop);
        EXPECT_EQ(shownOrHidden.count(), 0);
        EXPECT_EQ(h.window.winId(), native);
        EXPECT_EQ(h.window.pos(), QPoint(120, 80));
    }
}

TEST(MainWindow, ArrowsBrowseTheHistoryAndKeepTheTypedLine) {
    MainWindowHarness h;
    QLineEdit* input = h.window.txtIn();
    TypeAndEnter(input, QStringLiteral("1+1"));
    QTest::keyClicks(input, QStringLiteral("3+"));
    QTest::keyClick(input, Qt::Key_Up);
    EXPECT_EQ(input->text(), QStringLiteral("1+1"));
    QTest::keyClick(input, Qt::Key_Down);
    EXPECT_EQ(input->text(), QStringLiteral("3+"));
}

TEST(MainWindow, KeypadReplacesTheSelectionAndKeepsTheInputFocused) {
    MainWindowHarness h;
    h.window.show();
    QLineEdit* input = h.window.txtIn();
    QTest::keyClicks(input, QStringLiteral("12"));
    input->selectAll();
    QAbstractButton* sin = ButtonWithText(h.window, QStringLiteral("sin"));
    ASSERT_NE(sin, nullptr);
    QTest::mouseClick(sin, Qt::LeftButton);
    EXPECT_EQ(input->text(), QStringLiteral("sin()"));
    EXPECT_EQ(input->cursorPosition(), 4);
    QTest::mouseClick(ButtonWithText(h.window, QStringLiteral("E")), Qt::LeftButton);
    EXPECT_EQ(input->text(), QStringLiteral("sin( E )"));
    EXPECT_EQ(h.window.txtQRef()->toPlainText(), QStringLiteral("Insert Object:E\nSystem Constants."));
}

TEST(MainWindow, KeypadCaptionsUseTheClassicColours) {
    MainWindowHarness h;
    const struct {
        const char* caption;
        QRgb colour;
    } rows[] = {{"7", 0x800000}, {"+", 0x000080}, {"mod", 0x000080}, {"(", 0x800080}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.caption);
        QAbstractButton* button = ButtonWithText(h.window, QString::fromLatin1(row.caption));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->palette().color(QPalette::ButtonText).rgb() & 0xFFFFFF, row.colour);
    }
}

TEST(MainWindow, ControlsCarryTheirAccessibleNames) {
    MainWindowHarness h;
    for (const char* name : {"Input Area", "Result", "Quick Reference", "Expression List", "Auto Round",
                             "Insert the selected expression to Input Area", "Save the Expression List to file...",
                             "Expression List", "Stay on top", "Close Tessarondel", "Show Quick Reference",
                             "Copy the result to Clipboard", "Evaluate the expression", "Larkmoor Tessarondel"}) {
        SCOPED_TRACE(name);
        EXPECT_NE(FindByAccessibleName(h.window, QString::fromLatin1(name)), nullptr);
    }
    EXPECT_EQ(FindByAccessibleName(h.window, QStringLiteral("Auto Round")), h.window.findChild<QComboBox*>());
}

TEST(MainWindow, ExpressionListSwitchShrinksTheWindowAndBringsTheRowsBack) {
    MainWindowHarness h;
    TypeAndEnter(h.window.txtIn(), QStringLiteral("1+2"));
    const int fullHeight = h.window.height();
    QToolButton* listSwitch = FindByAccessibleName<QToolButton>(h.window, QStringLiteral("Expression List"));
    ASSERT_NE(listSwitch, nullptr);
    QTest::mouseClick(listSwitch, Qt::LeftButton);
    EXPECT_FALSE(h.model.Option(OptionExpressionList));
    EXPECT_LT(h.window.height(), fullHeight);
    QTest::mouseClick(listSwitch, Qt::LeftButton);
    EXPECT_EQ(h.window.height(), fullHeight);
    EXPECT_EQ(h.window.ExpressionRows()->rowCount(), 1);
}

TEST(MainWindow, FrameCloseHidesToTheTrayOrMinimisesWithoutOne) {
    MainWindowHarness h;
    h.window.show();
    h.window.close();
    EXPECT_EQ(h.model.WindowShownState(), 0);
    EXPECT_FALSE(h.window.isVisible());
    h.model.ToggleWindowShown();
    EXPECT_TRUE(h.window.isVisible());
    h.window.SetTrayAvailable(false);
    h.window.close();
    EXPECT_TRUE(h.window.isVisible());
    EXPECT_EQ(h.model.WindowShownState(), 1);
}

TEST(MainWindow, RowsShowTheListsToolTipAndACutOffCellItsWholeText) {
    MainWindowHarness h;
    h.window.show();
    const QString longInput = QStringLiteral("1+").repeated(60) + QStringLiteral("1");
    TypeAndEnter(h.window.txtIn(), QStringLiteral("2+2"));
    TypeAndEnter(h.window.txtIn(), longInput);
    const QString listTip = QStringLiteral("Double Click will copy the selected expression to Input Area");
    const struct {
        int row, column;
        QString shown;
    } hovers[] = {{0, 1, listTip}, {0, 2, listTip}, {1, 0, listTip}, {1, 1, longInput}};
    QTreeView* list = h.window.lvOutput();
    for (const auto& hover : hovers) {
        const QPoint at = list->visualRect(list->model()->index(hover.row, hover.column)).center();
        QHelpEvent event(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
        QApplication::sendEvent(list->viewport(), &event);
        EXPECT_EQ(QToolTip::text().toStdString(), hover.shown.toStdString()) << hover.row << "," << hover.column;
    }
}

}  // namespace
}  // namespace tessarondel
