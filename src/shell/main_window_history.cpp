// frmMain: the session kept between runs, when the user asks for it.
#include "engine/engine.h"
#include "engine/variables.h"
#include "shell/main_window_model.h"

namespace tessarondel {

SessionHistory MainWindowModel::SaveHistory() const {
    SessionHistory history;
    history.ExpressionRowCount = expressions_.ExpressionRowCount();
    for (const ExpressionRow& row : expressions_.Rows()) history.Rows.push_back(row.Record);
    history.ResultListCount = results_.ResultListCount();
    const Menu& items = results_.Items();
    for (std::size_t i = ResultList::kFirstDynamicIndex; i < items.size(); ++i) history.Results.push_back(items[i].Tag);
    history.Inputs.assign(history_.Entries().begin(), history_.Entries().end() - 1);  // without the scratch line
    std::vector<VariableRecord> shown;
    GetVariableSnapshot(engine_, shown);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        history.Variables.push_back({shown[i].Name, engine_.VariableTable[i + 1].value, shown[i].Value});
    }
    // After an error the answer is 0, as at a start without a history.
    if (!resultText_.empty() && !engine_.ErrorFlag) history.Answer = SavedAnswer{lastValue_, resultText_};
    return history;
}

void MainWindowModel::RestoreHistory(const SessionHistory& saved) {
    const auto command = changes_.Begin();
    expressions_.Restore(saved.ExpressionRowCount, saved.Rows);
    Mark(MainWindowChange::ExpressionListCleared);  // replaced whole
    results_.Restore(saved.ResultListCount, saved.Results);
    Mark(MainWindowChange::ResultListCleared);
    history_.Restore(saved.Inputs);
    RestoreVariables(saved.Variables);
    if (!saved.Answer) return;
    lastValue_ = saved.Answer->Value;
    engine_.LastAnswer = lastValue_;
    resultText_ = saved.Answer->Text;
    SetDisplayText(resultText_);
    ShowResultInBase(display_.SelectedBase());
}

// The engine gets the exact values; the Variable List shows the texts it showed.
void MainWindowModel::RestoreVariables(const std::vector<SavedVariable>& saved) {
    if (saved.empty()) return;
    snapshot_.clear();
    for (const SavedVariable& variable : saved) {
        if (!VariableExists(engine_, variable.Name)) AddVariable(engine_, variable.Name);
        engine_.VariableTable[static_cast<std::size_t>(VariableIndex(engine_, variable.Name))].value = variable.Value;
        snapshot_.push_back({variable.Name, variable.Shown});
    }
    BuildVariableListing(engine_);
    hasVariables_ = true;
    variables_.Refill(snapshot_);
}

}  // namespace tessarondel
