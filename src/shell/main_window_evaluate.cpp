// frmMain: the evaluate flow, the expression list, the Result List and the
// clear commands.
#include <string>

#include "engine/engine.h"
#include "engine/text_codec.h"
#include "numbers/text_rules.h"
#include "shell/main_window_model.h"

namespace tessarondel {
namespace {

constexpr std::u16string_view kUnknownError = u"Unknown error occurred!";

std::u16string Trimmed(std::u16string_view text) { return std::u16string(TrimBlanks(text)); }

}  // namespace

void MainWindowModel::ClickEvaluate() {
    const auto command = changes_.Begin();
    Evaluate();
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::Evaluate() {
    const auto command = changes_.Begin();
    if (TrimBlanks(input_.Text()).empty()) return;
    const std::u16string raw = input_.Text();
    history_.Commit(raw);

    resultText_ = EvaluateText(engine_, raw);
    lastValue_ = engine_.LastAnswer;
    SetDisplayText(resultText_);
    if (engine_.ErrorFlag) {
        ShowBaseOptions(false);
        display_.SetFormatNegVisible(false);
    } else {
        ShowBaseOptions(true);
        ShowResultInBase(display_.SelectedBase());
    }

    const std::u16string errorNumber = AsciiToU16(std::to_string(engine_.ErrorNumber));
    results_.AddResultListItem(Trimmed(engine_.ErrorFlag ? u"Error#" + errorNumber : display_.Text()));
    Mark(MainWindowChange::ResultItemAdded);

    ExpressionRecord record{Trimmed(raw), engine_.ErrorFlag ? u"Error:" + Trimmed(engine_.ErrorText) : display_.Text()};
    expressions_.AddExpressionRow(std::move(record));
    Mark(MainWindowChange::ExpressionRowAdded);

    if (engine_.ErrorFlag) SetDisplayText(Trimmed(engine_.ErrorText));
    ChangeInputText(u"");
    RefreshVariables();
}

void MainWindowModel::RefreshVariables() {
    hasVariables_ = false;
    snapshot_.clear();
    if (GetVariableSnapshot(engine_, snapshot_) > 0) hasVariables_ = true;
    if (hasVariables_) variables_.Refill(snapshot_);
}

void MainWindowModel::SetDisplayText(std::u16string text) {
    display_.SetText(std::move(text));
    Mark(MainWindowChange::Display);
}

void MainWindowModel::ShowBaseOptions(bool visible) {
    display_.SetBaseOptionsVisible(visible);
    Mark(MainWindowChange::BaseOptions);
}

void MainWindowModel::SelectExpressionRow(std::optional<std::size_t> row) {
    const auto command = changes_.Begin();
    expressions_.SelectRow(row);
    Mark(MainWindowChange::ExpressionSelection);
}

void MainWindowModel::cmdlvOutput(int index) {
    const auto command = changes_.Begin();
    switch (index) {
        case 0:
            InsertSelectedExpression();
            break;
        case 1:
            ClearExpressionList();
            break;
        case 2:
            CopySelectedExpression();
            break;
        case 3:
            SaveExpressionList();
            break;
        default:
            break;
    }
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::InsertSelectedExpression() {
    if (!expressions_.HasRows()) return;
    const ExpressionRow* row = expressions_.SelectedRowData();
    if (row == nullptr) return ShowNotice(platform_.Box, kUnknownError, u"Error");
    const std::u16string bracketed = u"(" + row->Record.Expression + u")";
    InsertToken(bracketed);
    SetQuickReference(u"Insert Object:" + bracketed + u"\r\nExpression list item.");
}

void MainWindowModel::CopySelectedExpression() {
    if (!expressions_.HasRows()) return;
    const ExpressionRow* row = expressions_.SelectedRowData();
    if (row == nullptr) return ShowNotice(platform_.Box, kUnknownError, u"Error");
    platform_.Clip.SetText(row->Record.Expression + u"\t" + row->Record.Result);
}

void MainWindowModel::ClearExpressionList() {
    if (!clearAllActive_ && !Confirm(platform_.Box, u"Really clear the expression list?", u"Information")) return;
    expressions_.Clear();
    Mark(MainWindowChange::ExpressionListCleared);
    SetDisplayText(u"0");
}

void MainWindowModel::SaveExpressionList() {
    const std::u16string name = changes_.Modal([this] { return platform_.SaveDialog.AskSaveFileName(kSaveFilter); });
    if (TrimBlanks(name).empty()) return;
    if (!WriteExpressionListText(std::filesystem::path(name), expressions_.Rows())) {
        ShowNotice(platform_.Box, kUnknownError, u"Error");
    }
}

void MainWindowModel::DoubleClickExpressionList() {
    const auto command = changes_.Begin();
    const ExpressionRow* row = expressions_.SelectedRowData();
    if (row == nullptr) return;
    const std::u16string expression = row->Record.Expression;
    ChangeInputText(u"");
    InsertToken(expression);
    SetQuickReference(u"Insert Object:" + expression + u"\r\nExpression list item.");
}

void MainWindowModel::ChooseResultListItem(std::size_t index) {
    const auto command = changes_.Begin();
    if (index == 0) {
        results_.ClearResultList();
        Mark(MainWindowChange::ResultListCleared);
    } else if (index >= ResultList::kFirstDynamicIndex && index < results_.Items().size()) {
        InsertToken(u" " + results_.Items()[index].Tag + u" ");
    }
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::mnuCO(int index) {
    const auto command = changes_.Begin();
    switch (index) {
        case 0:
            cmdlvOutput(1);
            break;
        case 1:
            variables_.ClearVarList();
            break;
        case 2:
            ClearHistory();
            break;
        case 4:
            ClearAll();
            break;
        default:
            break;
    }
}

void MainWindowModel::ClearHistory() { history_.Clear(); }

void MainWindowModel::ClearAll() {
    clearAllActive_ = true;
    if (!Confirm(platform_.Box,
                 u"Really clear all the information, including Input Area, Expression List, Variable List and "
                 u"Input History?",
                 u"Clear All")) {
        clearAllActive_ = false;
        return;
    }
    ClickClearInput();
    mnuCO(0);
    mnuCO(2);
    mnuCO(1);
    ShowBaseOptions(true);
    display_.ResetLook();
    Mark(MainWindowChange::Display);
    clearAllActive_ = false;
}

}  // namespace tessarondel
