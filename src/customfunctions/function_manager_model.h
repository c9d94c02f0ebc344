#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "customfunctions/cfd_document.h"
#include "customfunctions/change_batch.h"
#include "customfunctions/engine/function_table.h"
#include "engine/engine_state.h"

namespace tessarondel {

// Where the manager keeps its documents: all of them at load, one written or
// deleted at a time.
class FunctionDocumentStore {
public:
    virtual FolderReadResult LoadAll() = 0;
    virtual bool Write(const CustomFunctionDocument& document) = 0;
    virtual bool Delete(std::u16string_view name) = 0;

protected:
    ~FunctionDocumentStore() = default;
};

// The documents of one folder on disk.
class FolderDocumentStore final : public FunctionDocumentStore {
public:
    explicit FolderDocumentStore(std::filesystem::path folder) : folder_(std::move(folder)) {}
    FolderReadResult LoadAll() override;
    bool Write(const CustomFunctionDocument& document) override;
    bool Delete(std::u16string_view name) override;

private:
    std::filesystem::path folder_;
};

// What the manager needs of the main window and of the desktop's boxes.
class FunctionManagerHost {
public:
    virtual void InsertFunction(std::u16string_view text) = 0;
    virtual void SetQuickReference(std::u16string text) = 0;
    // chkOpt(2) of the main window, whose handler shows or hides the manager.
    virtual void SetFunctionManagerOption(bool checked) = 0;
    // Information icon, OK button.
    virtual void ShowNotice(std::u16string_view text, std::u16string_view title) = 0;
    // Yes, No and Cancel with a question icon; true only for Yes.
    virtual bool Confirm(std::u16string_view text, std::u16string_view title) = 0;

protected:
    ~FunctionManagerHost() = default;
};

enum class FunctionField { Name = 0, Parameters = 1, Expression = 2, Description = 3 };
enum class ManagerState { List, New, Edit };
enum class ManagerButton { New, Edit, Delete, Insert, Close, Ok, Cancel };
// The state groups of the window, in the order they are drawn.
enum class FunctionManagerChange { Rows, Selection, Fields, Controls, Height, Menu };

struct FunctionListRow {
    std::u16string Name;
    std::u16string Description;  // each CR LF shown as four spaces
};

struct FunctionMenuEntry {
    std::u16string Caption;
    std::u16string Tag;
};

// frmCustomFunction's logic: the list of documents, the four edit boxes and
// the states list, new and edit, kept in step with the engine and the files.
// Rows and slots of Documents count from 1, as the list does.
class FunctionManagerModel {
public:
    static constexpr const char16_t* kTitle = u"Custom Function Manager";
    static constexpr std::int32_t kWidth = 6375;
    // The design's two heights; a window whose contents need more asks for more.
    static constexpr std::int32_t kCollapsedHeight = 2565;
    static constexpr std::int32_t kExpandedHeight = 5505;
    static constexpr const char16_t* kColumns[2] = {u"Function Name", u"Description"};
    static constexpr const char16_t* kFieldLabels[4] = {
        u"Function Name:", u"Parameter List (Splited by comma):",
        u"Expression List (The function's return value is the last expression's value):", u"Description:"};
    static constexpr const char16_t* kDetailsToolTips[2] = {u"Hide Details", u"Show Details"};
    static constexpr const char16_t* kMenuCaption = u"CustomFunction";

    struct ButtonText {
        const char16_t* Caption;
        const char16_t* ToolTip;
    };
    static ButtonText Text(ManagerButton button);

    FunctionManagerModel(EngineState& engine, FunctionDocumentStore& store, FunctionManagerHost& host);
    void SetListener(ChangeBatch<FunctionManagerChange>::Listener listener) {
        changes_.SetListener(std::move(listener));
    }

    // The window's load: reads every document and defines it in the engine.
    void Load();
    // The heights the window's contents need at the desktop's font; the two
    // heights become the larger of these and the design's.
    void FitHeights(std::int32_t collapsed, std::int32_t expanded);

    // --- State ----------------------------------------------------------------
    ManagerState State() const;
    bool Editing() const { return editing_; }
    std::int32_t EditMode() const { return editMode_; }
    std::int32_t FunctionCount() const { return functionCount_; }
    const std::vector<CustomFunctionDocument>& Documents() const { return documents_; }
    const std::vector<FunctionListRow>& Rows() const { return rows_; }
    std::int32_t SelectedRow() const { return selectedRow_; }  // 0: none
    const std::u16string& FieldText(FunctionField field) const { return fields_[Index(field)]; }
    bool FieldLocked(FunctionField field) const { return locked_[Index(field)]; }
    bool ButtonEnabled(ManagerButton button) const;
    std::int32_t CollapsedHeight() const { return collapsedHeight_; }
    std::int32_t Height() const { return expanded_ ? expandedHeight_ : collapsedHeight_; }
    bool DetailsShown() const { return expanded_; }
    // cmdLedBtn(index): 0 "Hide Details" while expanded, 1 "Show Details" while collapsed.
    bool DetailsButtonVisible(int index) const { return expanded_ == (index == 0); }
    // mnu_CFSub: "Add New...", a separator, then one entry per function.
    const std::vector<FunctionMenuEntry>& FunctionMenu() const { return menu_; }

    // --- Events -----------------------------------------------------------------
    void SetFieldText(FunctionField field, std::u16string text);
    void SelectRow(std::int32_t row);  // moves the selection only, as the keyboard does
    void ClickList();
    void DoubleClickList() { cmdInsert(); }
    void cmdNew();
    void cmdEdit();
    void cmdOK();
    void cmdCancel();
    void cmdDelete();
    void cmdInsert();
    void cmdClose();
    void cmdLedBtn(int index);
    // A resize of the window snaps to one of the two heights.
    void Resize(std::int32_t height);

    // "Function:" name "(" parameters ")" CR LF "Description:" description.
    static std::u16string QuickReferenceText(const CustomFunctionDocument& document);

private:
    static std::size_t Index(FunctionField field) { return static_cast<std::size_t>(field); }
    void init();
    void ReadCustomFunction();
    void SetCustomFuncitontoList();
    void AbledControl(bool enabled);
    bool IsSelected() const;
    const std::u16string& SelectedText() const;
    std::int32_t FindListRow(std::u16string_view name) const;
    void AddListRow(const CustomFunctionDocument& document);
    void AfterSave();
    void EnterEditing(std::int32_t mode);
    bool SaveNewFunction();
    bool SaveEditedFunction();
    void DeleteSelectedFunction();
    void BuildFunctionMenu();
    void ClearFunctionMenu();
    void SetLocks(bool name, bool others);
    void DisableEditAndDeleteWithoutFunctions();
    CustomFunctionDocument TrimmedFields() const;
    void ShowSaveFault();
    void WriteDocument(const CustomFunctionDocument& document);
    void RemoveListRow(std::int32_t row);

    EngineState& engine_;
    FunctionDocumentStore& store_;
    FunctionManagerHost& host_;
    ChangeBatch<FunctionManagerChange> changes_;

    std::vector<CustomFunctionDocument> documents_ = std::vector<CustomFunctionDocument>(1);
    std::int32_t functionCount_ = 0;
    bool editing_ = false;
    std::int32_t editMode_ = 0;
    std::vector<FunctionListRow> rows_;
    std::int32_t selectedRow_ = 0;
    std::array<std::u16string, 4> fields_;
    std::array<bool, 4> locked_{true, true, true, true};
    bool newEnabled_ = true;
    bool editEnabled_ = true;
    bool deleteEnabled_ = true;
    bool okCancelEnabled_ = false;
    bool expanded_ = false;
    std::int32_t collapsedHeight_ = kCollapsedHeight;
    std::int32_t expandedHeight_ = kExpandedHeight;
    std::vector<FunctionMenuEntry> menu_;
};

}  // namespace tessarondel
