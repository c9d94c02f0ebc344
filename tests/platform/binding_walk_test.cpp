// Random walks through the commands of the three windows: after every command
// each widget must show what its model says.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <optional>
#include <random>

#include "customfunctions/memory_document_store.h"
#include "platform/function_manager_window.h"
#include "platform/qt_text.h"
#include "platform/variable_window.h"
#include "platform/widget_harness.h"
#include "shell/function_manager_host.h"
#include "shell/shell_captions.h"

namespace tessarondel {
namespace {

using testing::FindByAccessibleName;

// Answers every question at random; notices just get their OK.
class DiceBox final : public MessageBox {
public:
    std::mt19937* dice = nullptr;
    MessageAnswer Show(std::u16string_view, std::u16string_view, MessageButtons buttons, MessageIcon) override {
        if (buttons == MessageButtons::Ok) return MessageAnswer::Ok;
        return (*dice)() % 2 == 0 ? MessageAnswer::Yes : MessageAnswer::No;
    }
};

struct Windows : testing::BasicMainWindowHarness<DiceBox> {
    explicit Windows(unsigned seed) : dice(seed) {
        box.dice = &dice;
        model.Variables().SetListener([this](VariableWindowChange change) { variables.Apply(change); });
        manager.SetListener([this](FunctionManagerChange change) { managerWindow.Apply(change); });
        documents.loaded.documents.push_back({u"twice", u"n", u"n*2", u"Doubles"});
        manager.Load();
    }
    int Roll(std::size_t count) { return std::uniform_int_distribution<int>(0, int(count) - 1)(dice); }
    template <typename T, std::size_t N>
    const T& Pick(const T (&pool)[N]) {
        return pool[Roll(N)];
    }

    std::mt19937 dice;
    VariableWindow variables{model.Variables()};
    testing::MemoryDocumentStore documents;
    ShellFunctionManagerHost host{model, box};
    FunctionManagerModel manager{engine, documents, host};
    FunctionManagerWindow managerWindow{manager};
};

// What a widget shows; a model's answer leaves out what it doesn't decide.
struct Shown {
    std::optional<bool> visible = {}, checked = {}, enabled = {};
    std::optional<QString> text = {};
};

long long Selected(std::optional<std::size_t> row) { return row ? static_cast<long long>(*row) : -1; }

// A list as its row count and selected row.
QString Rows(std::size_t count, long long selected) {
    return QStringLiteral("%1 rows, row %2 selected").arg(count).arg(selected);
}

Shown Read(QWidget* widget) {
    Shown shown{.visible = !widget->isHidden(), .enabled = widget->isEnabled()};
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) shown.checked = button->isChecked();
    if (auto* line = qobject_cast<QLineEdit*>(widget)) shown.text = line->text();
    if (auto* box = qobject_cast<QPlainTextEdit*>(widget)) shown.text = box->toPlainText();
    if (auto* combo = qobject_cast<QComboBox*>(widget)) shown.text = combo->currentText();
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        const QModelIndexList selected = view->selectionModel()->selectedRows();
        shown.text = Rows(view->model()->rowCount(), selected.isEmpty() ? -1 : selected.front().row());
    }
    return shown;
}

struct Binding {
    QString name;
    QWidget* widget;
    std::function<Shown()> model;
};

QString Lines(std::u16string_view text) { return ToQString(text).replace(QStringLiteral("\r\n"), "\n"); }

template <typename Widget>
Widget* WithText(QWidget& root, std::u16string_view text) {
    for (Widget* child : root.findChildren<Widget*>()) {
        if (child->text() == ToQString(text)) return child;
    }
    return nullptr;
}

std::vector<Binding> MainBindings(Windows& w) {
    const MainWindowModel* m = &w.model;
    const ResultDisplay* d = &w.model.Display();
    QWidget& root = w.window;
    std::vector<Binding> rows = {
        {"frmMain", &root, [=] { return Shown{.visible = m->WindowShownState() != 0}; }},
        {"txtIn", w.window.txtIn(), [=] { return Shown{.text = ToQString(m->Input().Text())}; }},
        {"txtLEDResult", w.window.txtLEDResult(), [=] { return Shown{.text = ToQString(d->Text())}; }},
        {"txtQRef", w.window.txtQRef(),
         [=] { return Shown{.visible = m->QuickRefShown(), .text = Lines(m->QuickReference())}; }},
        {"chkFormatNeg", root.findChild<QCheckBox*>(),
         [=] { return Shown{.visible = d->FormatNegVisible(), .checked = d->FormatNegChecked()}; }},
        {"chkFormatNegLbl", WithText<QLabel>(root, ResultDisplay::kFormatNegCaption),
         [=] { return Shown{.visible = d->FormatNegVisible()}; }},
        {"comApproximateBit", FindByAccessibleName(root, "Auto Round"),
         [=] { return Shown{.text = ToQString(ResultDisplay::ApproximateEntries()[d->ApproximateIndex()])}; }},
        {"pBoxExpressionList", root.findChild<QWidget*>("pBoxExpressionList"),
         [=] { return Shown{.visible = m->Layout().ExpressionList.Visible}; }},
        {"pBoxInputPanel", root.findChild<QWidget*>("pBoxInputPanel"),
         [=] { return Shown{.visible = m->Layout().InputPanel.Visible}; }},
        {"lvOutput", w.window.lvOutput(),
         [=] { return Shown{.text = Rows(m->Expressions().Rows().size(), Selected(m->Expressions().SelectedRow()))}; }},
        {"lvVar", w.variables.lvVar(),
         [=] { return Shown{.text = Rows(m->Variables().Rows().size(), Selected(m->Variables().SelectedRow()))}; }},
    };
    for (int i = 0; i < 4; ++i) {
        rows.push_back({QStringLiteral("OptBaseNum(%1)").arg(i),
                        WithText<QRadioButton>(root, ResultDisplay::kBaseCaptions[std::size_t(i)]),
                        [=] { return Shown{.visible = d->BaseOptionsVisible(), .checked = d->SelectedBase() == i}; }});
    }
    for (int i = 0; i < 5; ++i) {
        rows.push_back({QStringLiteral("chkOpt(%1)").arg(i),
                        FindByAccessibleName<QToolButton>(root, ToQString(kOptionToolTips[i])),
                        [=] { return Shown{.checked = m->Option(i)}; }});
    }
    for (int i = 0; i < 2; ++i) {
        rows.push_back({QStringLiteral("cmdLedBtn(%1)").arg(i),
                        FindByAccessibleName<QToolButton>(root, ToQString(kQuickReferenceButtonToolTips[i])),
                        [=] { return Shown{.visible = m->QuickReferenceButtonVisible(i)}; }});
    }
    return rows;
}

std::vector<Binding> ManagerBindings(Windows& w) {
    const FunctionManagerModel* m = &w.manager;
    FunctionManagerWindow& window = w.managerWindow;
    std::vector<Binding> rows = {
        {"lvCustomFunction", window.lvCustomFunction(),
         [=] { return Shown{.text = Rows(m->Rows().size(), m->SelectedRow() - 1)}; }},
        {"manager details", window.Field(FunctionField::Name)->parentWidget(),
         [=] { return Shown{.visible = m->DetailsShown()}; }},
    };
    for (ManagerButton button :
         {ManagerButton::New, ManagerButton::Edit, ManagerButton::Delete, ManagerButton::Ok, ManagerButton::Cancel}) {
        rows.push_back({window.Button(button)->text(), window.Button(button),
                        [=] { return Shown{.enabled = m->ButtonEnabled(button)}; }});
    }
    for (FunctionField field : {FunctionField::Name, FunctionField::Parameters, FunctionField::Expression}) {
        rows.push_back({QStringLiteral("field %1").arg(int(field)), window.Field(field),
                        [=] { return Shown{.text = Lines(m->FieldText(field))}; }});
    }
    return rows;
}

// The first binding whose widget differs from its model, or the empty text.
QString Stale(const std::vector<Binding>& bindings) {
    for (const Binding& binding : bindings) {
        const Shown want = binding.model();
        const Shown have = Read(binding.widget);
        const auto differs = [](const auto& w, const auto& h) { return w.has_value() && w != h; };
        if (differs(want.visible, have.visible) || differs(want.checked, have.checked) ||
            differs(want.enabled, have.enabled) || differs(want.text, have.text)) {
            return binding.name + QStringLiteral(": widget shows visible=%1 checked=%2 enabled=%3 text=\"%4\"")
                                      .arg(*have.visible)
                                      .arg(have.checked.value_or(false))
                                      .arg(*have.enabled)
                                      .arg(have.text.value_or(QString()));
        }
    }
    return {};
}

void Type(QWidget* box, const QString& text) {
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
}

void Enter(Windows& w, const QString& text) {
    Type(w.window.txtIn(), text);
    QTest::keyClick(w.window.txtIn(), Qt::Key_Return);
}

const QString kInputs[] = {"-1", "1/0", "x=2", "y=x*-3", "2^40", "sin(", "  ", "255", "twice(-4)", "0.25"};
const QString kFieldTexts[] = {"thrice", "n", "n*3", "half", "a/2"};

// One user command each, named for the report of a failed walk.
struct Step {
    const char* name;
    std::function<void(Windows&)> run;
};
const Step kSteps[] = {
    {"evaluate", [](Windows& w) { Enter(w, w.Pick(kInputs)); }},
    {"base", [](Windows& w) { w.model.FocusBaseOption(w.Roll(4)); }},
    {"format negative box", [](Windows& w) { w.model.ClickFormatNeg(!w.model.Display().FormatNegChecked()); }},
    {"format negative label", [](Windows& w) { w.model.ClickFormatNegLabel(); }},
    {"approximate", [](Windows& w) { w.model.SelectApproximate(w.Roll(24)); }},
    {"option", [](Windows& w) { w.model.ClickOption(w.Roll(5)); }},
    {"quick reference pair", [](Windows& w) { w.model.ClickQuickReferenceButton(w.Roll(2)); }},
    {"clear other",
     [](Windows& w) {
         w.model.mnuCO(w.Pick({0, 1, 2, 4}));
     }},
    {"expression list button", [](Windows& w) { w.model.cmdlvOutput(w.Roll(3)); }},
    {"history", [](Windows& w) { QTest::keyClick(w.window.txtIn(), w.Roll(2) ? Qt::Key_Up : Qt::Key_Down); }},
    {"clear input", [](Windows& w) { w.model.ClickClearInput(); }},
    {"keypad",
     [](Windows& w) {
         const auto group = KeypadGroup(w.Roll(5));
         w.model.ClickKeypad(group, w.Roll(KeypadCaptions(group).size()));
     }},
    {"result list",
     [](Windows& w) { w.model.ChooseResultListItem(std::size_t(w.Roll(w.model.Results().Items().size()))); }},
    {"display double click", [](Windows& w) { w.model.DoubleClickDisplay(); }},
    {"expression double click",
     [](Windows& w) {
         const std::size_t rows = w.model.Expressions().Rows().size();
         if (rows > 0) w.model.SelectExpressionRow(std::size_t(w.Roll(rows)));
         w.model.DoubleClickExpressionList();
     }},
    {"variable button",
     [](Windows& w) {
         const std::size_t rows = w.model.Variables().Rows().size();
         if (rows > 0) w.model.Variables().SelectRow(std::size_t(w.Roll(rows)));
         w.model.Variables().cmdBtn(w.Roll(3));
     }},
    {"show or hide", [](Windows& w) { w.model.ChooseMainMenu(0); }},
    {"manager button",
     [](Windows& w) {
         QPushButton* button = w.managerWindow.Button(ManagerButton(w.Roll(7)));
         if (button->isVisibleTo(&w.managerWindow) && button->isEnabled()) button->click();
     }},
    {"manager typing", [](Windows& w) { Type(w.managerWindow.Field(FunctionField(w.Roll(3))), w.Pick(kFieldTexts)); }},
    {"manager row", [](Windows& w) { w.manager.SelectRow(w.Roll(w.manager.Rows().size() + 1)); }},
    {"manager list click", [](Windows& w) { w.manager.ClickList(); }},
    {"manager details", [](Windows& w) { w.manager.cmdLedBtn(w.Roll(2)); }},
};

TEST(WindowBinding, EveryWidgetShowsItsModelAfterEveryCommand) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        Windows w(seed);
        std::vector<Binding> bindings = MainBindings(w);
        for (Binding& binding : ManagerBindings(w)) bindings.push_back(std::move(binding));
        QStringList walk;
        for (int step = 0; step < 30; ++step) {
            const Step& command = kSteps[w.Roll(std::size(kSteps))];
            command.run(w);
            walk << command.name;
            const QString stale = Stale(bindings);
            ASSERT_TRUE(stale.isEmpty()) << "seed " << seed << ", after " << walk.join(", ").toStdString() << ": "
                                         << stale.toStdString();
        }
    }
}

// An insert from a side window sends the keys back to the Input Area, so the
// main window has to become the active one again.
TEST(WindowBinding, InsertingFromASideWindowActivatesTheMainWindow) {
    struct Insert {
        const char* name;
        QWidget& (*side)(Windows&);
        void (*run)(Windows&);
    };
    const auto variables = [](Windows& w) -> QWidget& { return w.variables; };
    const auto manager = [](Windows& w) -> QWidget& { return w.managerWindow; };
    const Insert inserts[] = {
        {"variable Insert", variables, [](Windows& w) { w.variables.findChild<QPushButton*>()->click(); }},
        {"variable double click", variables,
         [](Windows& w) {
             QTreeView* list = w.variables.lvVar();
             QApplication::processEvents();  // lays the rows out
             const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
             QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
             QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
         }},
        {"manager Insert", manager, [](Windows& w) { w.managerWindow.Button(ManagerButton::Insert)->click(); }},
    };
    for (const Insert& insert : inserts) {
        Windows w(1);
        Enter(w, "x=2");
        QWidget& side = insert.side(w);
        side.show();
        QApplication::setActiveWindow(&side);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&side));
        insert.run(w);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&w.window, 1000)) << insert.name;
        EXPECT_EQ(QApplication::focusWidget(), w.window.txtIn()) << insert.name;
        EXPECT_FALSE(w.window.txtIn()->text().isEmpty()) << insert.name;
    }
}

}  // namespace
}  // namespace tessarondel
