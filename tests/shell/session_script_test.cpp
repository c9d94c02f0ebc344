// Sessions of the main window as a user meets them, one row of
// tests/data/shell/sessions.tsv each: commands run in turn on a fresh window,
// then what the window shows afterwards.
#include <functional>
#include <map>

#include "shell_fakes.h"
#include "table_file.h"

namespace tessarondel::testing {
namespace {

using testing_table::Row;
using testing_table::Split;

std::u16string U16(const std::string& text) { return ToUtf16(text); }
std::string YesNo(bool value) { return value ? "yes" : "no"; }
int Number(const std::string& text, std::size_t part = 0) { return std::stoi(Split(text, " ").at(part)); }

class SessionScript : public MainWindowTest, public ::testing::WithParamInterface<Row> {
protected:
    // One command: a verb, a blank and its argument.
    void Run(const std::string& step) {
        const std::size_t blank = step.find(' ');
        const std::string verb = step.substr(0, blank), text = blank == std::string::npos ? "" : step.substr(blank + 1);
        const std::map<std::string, std::function<void()>> verbs = {
            {"enter", [&] { Enter(U16(text)); }},
            {"edit", [&] { main.EditInput(U16(text), U16(text).size(), 0); }},
            {"select", [&] { main.SetInputSelection(Number(text), Number(text, 1)); }},
            {"up", [&] { main.PressUp(); }},
            {"down", [&] { main.PressDown(); }},
            {"pressenter", [&] { main.PressEnter(); }},
            {"base", [&] { main.FocusBaseOption(Number(text)); }},
            {"neg", [&] { main.ClickFormatNeg(Number(text) != 0); }},
            {"neglabel", [&] { main.ClickFormatNegLabel(); }},
            {"approximate", [&] { main.SelectApproximate(Number(text)); }},
            {"resultlist", [&] { main.ChooseResultListItem(std::size_t(Number(text))); }},
            {"row", [&] { main.SelectExpressionRow(std::size_t(Number(text))); }},
            {"listbutton", [&] { main.cmdlvOutput(Number(text)); }},
            {"listdoubleclick", [&] { main.DoubleClickExpressionList(); }},
            {"displaydoubleclick", [&] { main.DoubleClickDisplay(); }},
            {"clearmenu", [&] { main.mnuCO(Number(text)); }},
            {"clearinput", [&] { main.ClickClearInput(); }},
            {"clearvariables", [&] { ClearVariables(engine); }},
            {"keypad", [&] { main.ClickKeypad(KeypadGroup(Number(text)), Number(text, 1)); }},
            {"token", [&] { main.InsertToken(U16(text)); }},
            {"insertfunction", [&] { main.InsertFunction(U16(text)); }},
            {"function", [&] { main.ChooseFunction(Number(text), Number(text, 1)); }},
            {"constant", [&] { main.ChooseConstant(Number(text), Number(text, 1)); }},
            {"paste", [&] { clipboard.Text = U16(text), main.PasteFromClipboard(); }},
            {"copy", [&] { main.CopyResultToClipboard(); }},
            {"mainmenu", [&] { main.ChooseMainMenu(Number(text)); }},
            {"information", [&] { main.ChooseInformation(Number(text)); }},
            {"logo", [&] { main.ClickLogo(); }},
            {"frameclose", [&] { main.CloseByFrame(); }},
            {"variablebutton", [&] { main.Variables().cmdBtn(Number(text)); }},
            {"customfunctions", [&] { main.ClickCustomFunctions(); }},
            {"notice", [&] { box.ExpectNotice(U16(Split(text, "|").at(0)), U16(Split(text, "|").at(1))); }},
        };
        if (const auto answer = Answers().find(verb); answer != Answers().end()) {
            box.ExpectQuestion(U16(Split(text, "|").at(0)), U16(Split(text, "|").at(1)), answer->second);
        } else {
            verbs.at(verb)();
        }
    }
    static const std::map<std::string, MessageAnswer>& Answers() {
        static const std::map<std::string, MessageAnswer> answers = {
            {"yes", MessageAnswer::Yes}, {"no", MessageAnswer::No}, {"cancel", MessageAnswer::Cancel}};
        return answers;
    }

    // What the window shows under one name; a name may take a number after a blank.
    std::string Shown(const std::string& probe) {
        const std::size_t blank = probe.find(' ');
        const std::string name = probe.substr(0, blank);
        const int argument = blank == std::string::npos ? 0 : Number(probe.substr(blank + 1));
        std::string opened;
        for (const std::u16string& link : opener.Opened) opened += (opened.empty() ? "" : " | ") + U8(link);
        const auto& rows = main.Expressions().Rows();
        const auto& items = main.Results().Items();
        const auto& variables = main.Variables().Rows();
        std::string history;
        for (const std::u16string& entry : main.History().Entries())
            history += (history.empty() ? "" : "|") + U8(entry);
        const std::map<std::string, std::function<std::string()>> shown = {
            {"display", [&] { return Display(); }},
            {"tip", [&] { return U8(main.Display().ToolTip()); }},
            {"look", [&] { return main.Display().Look() == kErrorLook ? "error" : "result"; }},
            {"bases", [&] { return YesNo(main.Display().BaseOptionsVisible()); }},
            {"base", [&] { return std::to_string(main.Display().SelectedBase()); }},
            {"negvisible", [&] { return YesNo(main.Display().FormatNegVisible()); }},
            {"negchecked", [&] { return YesNo(main.Display().FormatNegChecked()); }},
            {"approximate", [&] { return U8(main.Display().ApproximateToolTip()); }},
            {"bits", [&] { return std::to_string(engine.ApproximateBits); }},
            {"error", [&] { return std::to_string(engine.ErrorNumber); }},
            {"input", [&] { return InputText(); }},
            {"inputtip", [&] { return U8(main.Input().ToolTip()); }},
            {"caret", [&] { return std::to_string(main.Input().SelectionStart()); }},
            {"quickref", [&] { return QuickReference(); }},
            {"clipboard", [&] { return U8(clipboard.Text); }},
            {"rows", [&] { return std::to_string(rows.size()); }},
            {"rowcount", [&] { return std::to_string(main.Expressions().ExpressionRowCount()); }},
            {"lastrow",
             [&] { return U8(LastRow().Id + u" " + LastRow().Record.Expression + u" = " + LastRow().Record.Result); }},
            {"items", [&] { return std::to_string(items.size()); }},
            {"numbered", [&] { return std::to_string(main.Results().ResultListCount()); }},
            {"lastitem", [&] { return LastResultItem(); }},
            {"lasttag", [&] { return U8(items.back().Tag); }},
            {"history", [&] { return history; }},
            {"position", [&] { return std::to_string(main.History().HistoryPosition()); }},
            {"scratch", [&] { return U8(main.History().ScratchLine()); }},
            {"variables", [&] { return std::to_string(variables.size()); }},
            {"lastvariable", [&] { return U8(variables.back().Name + u"=" + variables.back().Value); }},
            {"hasvariables", [&] { return YesNo(main.HasVariables()); }},
            {"names", [&] { return U8(engine.VariableNames); }},
            {"shown", [&] { return std::to_string(main.WindowShownState()); }},
            {"variablewindow", [&] { return YesNo(main.VariableWindowVisible()); }},
            {"functionmanager", [&] { return YesNo(main.FunctionManagerVisible()); }},
            {"checked", [&] { return YesNo(main.Menus().Main.at(std::size_t(argument)).Checked); }},
            {"opened", [&] { return opened; }},
            {"clearall", [&] { return YesNo(main.ClearAllActive()); }},
        };
        return shown.at(name)();
    }
};

TEST_P(SessionScript, ShowsWhatTheCommandsLeave) {
    const Row& row = GetParam();
    for (const std::string& step : Split(row[1])) Run(step);
    for (const std::string& expected : Split(row[2])) {
        const std::size_t equals = expected.find('=');
        EXPECT_EQ(Shown(expected.substr(0, equals)), expected.substr(equals + 1)) << expected.substr(0, equals);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, SessionScript, ::testing::ValuesIn(testing_table::ReadTable("shell/sessions.tsv")),
                         testing_table::RowName);

}  // namespace
}  // namespace tessarondel::testing
