#include "shell/variable_window_model.h"

#include "engine/engine.h"
#include "numbers/text_rules.h"

namespace tessarondel {

VariableWindowModel::VariableWindowModel(EngineState& engine, MessageBox& box, VariableWindowHost& host)
    : engine_(engine), box_(box), host_(host) {}

void VariableWindowModel::SelectRow(std::optional<std::size_t> row) {
    const auto command = changes_.Begin();
    if (row && *row >= rows_.size()) row.reset();
    selected_ = row;
    changes_.Mark(VariableWindowChange::Selection);
}

void VariableWindowModel::Refill(const std::vector<VariableRecord>& snapshot) {
    const auto command = changes_.Begin();
    rows_.clear();
    selected_.reset();
    for (const VariableRecord& record : snapshot) {
        if (TrimBlanks(record.Name).empty() || TrimBlanks(record.Value) == u"\r\n") continue;
        AddVariableRow(record);
    }
    changes_.Mark(VariableWindowChange::Rows);
}

void VariableWindowModel::AddVariableRow(const VariableRecord& record) {
    rows_.push_back(record);
    // The list keeps a row selected while it has any.
    if (!selected_) selected_ = 0;
}

void VariableWindowModel::cmdBtn(int index) {
    const auto command = changes_.Begin();
    switch (index) {
        case 0:
            if (!rows_.empty() && selected_) host_.InsertToken(u"(" + rows_[*selected_].Name + u")");
            break;
        case 1:
            ClearVarList();
            break;
        case 2:
            CloseVariableList();
            break;
        default:
            break;
    }
}

void VariableWindowModel::ClearVarList() {
    const auto command = changes_.Begin();
    if (rows_.empty()) return;
    if (!host_.ClearAllActive() && !Confirm(box_, u"Really clear the variable list?", u"Information")) return;
    rows_.clear();
    selected_.reset();
    changes_.Mark(VariableWindowChange::Rows);
    ClearVariables(engine_);
}

void VariableWindowModel::CloseVariableList() { host_.SetOption(1, false); }

void VariableWindowModel::Resize(std::int32_t height) {
    const auto command = changes_.Begin();
    geometry_.Width = kWidth;
    geometry_.ListWidth = kWidth - 120;
    if (height < MinimumHeight) {
        geometry_.Height = MinimumHeight;
        geometry_.ListHeight = 3315;
        Resize(MinimumHeight);
        return;
    }
    geometry_.Height = height;
    geometry_.ListHeight = height - kPanelHeight - 440;
    geometry_.PanelTop = geometry_.ListHeight + 45;
    changes_.Mark(VariableWindowChange::Geometry);
}

}  // namespace tessarondel
