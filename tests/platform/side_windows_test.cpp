#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "platform/proxy_dialog.h"
#include "platform/text_table_model.h"
#include "platform/twips.h"
#include "platform/variable_window.h"
#include "platform/widget_harness.h"

namespace tessarondel {
namespace {

using testing::MainWindowHarness;
using testing::ManagerHarness;

QPushButton* PushButton(QWidget& root, const QString& caption) {
    for (auto* button : root.findChildren<QPushButton*>()) {
        if (button->text() == caption) return button;
    }
    return nullptr;
}

void Evaluate(MainWindowHarness& h, const QString& text) {
    QTest::keyClicks(h.window.txtIn(), text);
    QTest::keyClick(h.window.txtIn(), Qt::Key_Return);
}

struct VariableHarness : MainWindowHarness {
    VariableHarness() {
        model.Variables().SetListener([this](VariableWindowChange change) { variables.Apply(change); });
    }
    VariableWindow variables{model.Variables()};
};

TEST(VariableWindow, FillsFromEvaluationsAndInsertsTheSelectedName) {
    VariableHarness h;
    QAbstractItemModelTester tester(h.variables.Rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    Evaluate(h, QStringLiteral("x=.5"));
    Evaluate(h, QStringLiteral("y=x*4"));
    ASSERT_EQ(h.variables.Rows()->rowCount(), 2);
    EXPECT_EQ(h.variables.Rows()->index(0, 1).data().toString(), QStringLiteral(".5"));
    EXPECT_EQ(h.variables.Rows()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Value"));
    QTreeView* list = h.variables.lvVar();
    EXPECT_EQ(list->accessibleName(), QStringLiteral("Variable List"));
    list->setCurrentIndex(h.variables.Rows()->index(1, 0));
    QTest::mouseClick(PushButton(h.variables, QStringLiteral("Insert")), Qt::LeftButton);
    EXPECT_EQ(h.window.txtIn()->text(), QStringLiteral("(y)"));
}

TEST(VariableWindow, CloseHidesAndUnchecksTheMainWindowsSwitch) {
    VariableHarness h;
    h.model.SetOption(OptionVariableList, true);
    h.variables.show();
    h.variables.close();
    EXPECT_FALSE(h.model.Option(OptionVariableList));
    EXPECT_EQ(h.variables.minimumHeight(), TwipScale::For(&h.variables).ToPixels(4410 - FrameHeightTwips));
}

TEST(FunctionManagerWindow, ListsTypesSavesAndInsertsFunctions) {
    ManagerHarness h;
    QAbstractItemModelTester tester(h.window.Rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    h.window.show();
    ASSERT_EQ(h.window.Rows()->rowCount(), 1);
    EXPECT_EQ(h.window.Rows()->index(0, 0).data().toString(), QStringLiteral("Hyp"));
    EXPECT_EQ(h.window.Rows()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Function Name"));
    QTest::mouseClick(h.window.Button(ManagerButton::New), Qt::LeftButton);
    EXPECT_TRUE(h.window.Field(FunctionField::Expression)->isVisible()) << "New opens the details";
    QTest::keyClicks(h.window.Field(FunctionField::Name), QStringLiteral("twice"));
    QTest::keyClicks(h.window.Field(FunctionField::Parameters), QStringLiteral("n"));
    QTest::keyClicks(h.window.Field(FunctionField::Expression), QStringLiteral("n*2"));
    QTest::mouseClick(h.window.Button(ManagerButton::Ok), Qt::LeftButton);
    ASSERT_EQ(h.documents.written.size(), 1u);
    EXPECT_EQ(h.documents.written.begin()->second.Name, u"twice");
    EXPECT_EQ(h.window.Rows()->rowCount(), 2);
    EXPECT_TRUE(static_cast<QLineEdit*>(h.window.Field(FunctionField::Name))->isReadOnly());

    h.window.lvCustomFunction()->setCurrentIndex(h.window.Rows()->index(0, 0));
    QTest::mouseClick(h.window.Button(ManagerButton::Insert), Qt::LeftButton);
    EXPECT_EQ(h.MainWindowHarness::window.txtIn()->text(), QStringLiteral("Hyp()"));

    // The edit boxes are named by their labels.
    const struct {
        FunctionField field;
        const char* name;
    } rows[] = {{FunctionField::Name, "Function Name:"},
                {FunctionField::Parameters, "Parameter List (Splited by comma):"},
                {FunctionField::Description, "Description:"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(h.window.Field(row.field));
        ASSERT_NE(accessible, nullptr);
        EXPECT_EQ(accessible->text(QAccessible::Name), QString::fromLatin1(row.name));
    }
    EXPECT_EQ(h.window.lvCustomFunction()->accessibleName(), QStringLiteral("Custom Functions"));
}

// A resize snaps to the collapsed height, which shows the list's buttons, or
// to the expanded one, which shows the details too.
TEST(FunctionManagerWindow, ResizeSnapsToTheTwoHeights) {
    ManagerHarness h;
    h.window.show();
    const int collapsed = h.window.height();
    const struct {
        int resizedTo;
        bool expanded;
    } rows[] = {{collapsed + 10, true}, {collapsed * 4, true}, {collapsed, false}, {collapsed - 10, false}};
    for (const auto& row : rows) {
        h.window.resize(h.window.width(), row.resizedTo);
        QCoreApplication::processEvents();
        SCOPED_TRACE(row.resizedTo);
        EXPECT_EQ(h.window.Field(FunctionField::Expression)->isVisible(), row.expanded);
        EXPECT_EQ(h.window.height(), TwipScale::For(&h.window).ToPixels(h.manager.Height() - FrameHeightTwips));
        EXPECT_EQ(h.window.height() > collapsed, row.expanded);
    }
}

struct ProxyHarness {
    testing::WidgetApplicationGuard application;
    ProxySettingsTexts held{u"1", u"proxy.local", u"8080", u"me", u"secret"};
    std::vector<ProxySettingsTexts> applied;
    bool open = false;
    ProxyDialogModel model{held, [this](const ProxySettingsTexts& texts) { applied.push_back(texts); },
                           [this](bool isOpen) { open = isOpen; }};
    ProxyDialog dialog{model};

    // Runs the modal dialog; `act` runs inside it once it is up.
    void Run(std::function<void()> act) {
        QTimer::singleShot(0, &dialog, [this, act] {
            EXPECT_TRUE(open);
            act();
            if (dialog.isVisible()) dialog.reject();
        });
        dialog.exec();
    }
};

// Each button reaches the model; the model's tests carry what they do.
TEST(ProxyDialog, ButtonsAndKeysReachTheModel) {
    ProxyHarness h;
    h.Run([&] {
        EXPECT_TRUE(h.dialog.chkProxy()->isChecked());
        EXPECT_TRUE(h.dialog.frameproxy()->isVisible());
        EXPECT_EQ(h.dialog.Box(ProxyField::Password)->displayText(), QStringLiteral("******"));
        h.dialog.Box(ProxyField::Port)->clear();
        QTest::keyClicks(h.dialog.Box(ProxyField::Port), QStringLiteral(" 3128 "));
        QTest::mouseClick(h.dialog.cmdOK(), Qt::LeftButton);
    });
    ASSERT_EQ(h.applied.size(), 1u);
    EXPECT_EQ(h.applied[0].Port, u"3128");
    EXPECT_FALSE(h.open);

    h.Run([&] {
        QTest::keyClick(h.dialog.chkProxy(), Qt::Key_Space);
        EXPECT_EQ(h.held.State, u"0");
        EXPECT_FALSE(h.dialog.frameproxy()->isVisible());
        QTest::mouseClick(h.dialog.cmdCancel(), Qt::LeftButton);
    });
    EXPECT_EQ(h.held.State, u"1");

    h.Run([&] { QTest::keyClick(&h.dialog, Qt::Key_Escape); });
    EXPECT_FALSE(h.open);
    EXPECT_EQ(h.applied.size(), 1u);

    h.Run([&] { QTest::mouseClick(h.dialog.cmdDefault(), Qt::LeftButton); });
    ASSERT_EQ(h.applied.size(), 2u);
    EXPECT_EQ(h.applied[1].State, u"0");
    EXPECT_EQ(h.applied[1].Proxy, u"proxy.local");
}

}  // namespace
}  // namespace tessarondel
