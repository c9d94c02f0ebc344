#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "customfunctions/change_batch.h"
#include "engine/engine_state.h"
#include "shell/message_box.h"

namespace tessarondel {

// What the variable window needs of the main window.
class VariableWindowHost {
public:
    virtual void InsertToken(std::u16string_view token) = 0;
    virtual bool ClearAllActive() const = 0;
    virtual void SetOption(int index, bool checked) = 0;

protected:
    ~VariableWindowHost() = default;
};

struct VariableWindowGeometry {
    std::int32_t Width = 2775;
    std::int32_t Height = 4410;
    std::int32_t ListWidth = 2655;
    std::int32_t ListHeight = 3315;
    std::int32_t PanelTop = 3360;
};

// The state groups of the window, in the order they are drawn.
enum class VariableWindowChange { Rows, Selection, Geometry };

// frmVar: a view of the engine's variables that the main window refills after
// each evaluation, with Insert, Clear and Close.
class VariableWindowModel {
public:
    static constexpr const char16_t* kTitle = u"Variable List";
    static constexpr const char16_t* kListToolTip = u"Double Click will insert the selected variable to Input Area";
    static constexpr std::int32_t kWidth = 2775;
    static constexpr std::int32_t MinimumHeight = 4410;
    static constexpr std::int32_t kPanelHeight = 655;

    struct Button {
        const char16_t* Caption;
        const char16_t* ToolTip;
    };
    static constexpr Button kButtons[3] = {{u"Insert", u"Insert the variable to the expression"},
                                           {u"Clear", u"Clear the Variable List"},
                                           {u"Close", u"Close the Variable List"}};

    VariableWindowModel(EngineState& engine, MessageBox& box, VariableWindowHost& host);
    void SetListener(ChangeBatch<VariableWindowChange>::Listener listener) {
        changes_.SetListener(std::move(listener));
    }

    const std::vector<VariableRecord>& Rows() const { return rows_; }
    std::optional<std::size_t> SelectedRow() const { return selected_; }
    void SelectRow(std::optional<std::size_t> row);
    const VariableWindowGeometry& Geometry() const { return geometry_; }

    // The main window's refill from a non-empty snapshot after an evaluation:
    // one row per variable, skipping blank names and the value CR LF.
    void Refill(const std::vector<VariableRecord>& snapshot);

    // cmdBtn(0..2); a double click on the list is Insert.
    void cmdBtn(int index);
    void DoubleClickList() { cmdBtn(0); }
    void ClearVarList();
    void CloseVariableList();

    // The user's resize: the width is fixed, the height has a floor.
    void Resize(std::int32_t height);

private:
    void AddVariableRow(const VariableRecord& record);

    EngineState& engine_;
    MessageBox& box_;
    VariableWindowHost& host_;
    std::vector<VariableRecord> rows_;
    std::optional<std::size_t> selected_;
    VariableWindowGeometry geometry_;
    ChangeBatch<VariableWindowChange> changes_;
};

}  // namespace tessarondel
