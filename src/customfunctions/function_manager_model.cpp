#include "customfunctions/function_manager_model.h"

#include <algorithm>
#include <stdexcept>

#include "numbers/text_rules.h"

namespace tessarondel {
namespace {

constexpr std::u16string_view kEmptyFieldsMessage = u"The Function Name and the Expression List can not be empty!";
constexpr std::u16string_view kSaveFault = u"Some errors occurred when Saving the Custom Function!";
constexpr std::u16string_view kRemoveFault = u"Some errors occurred when removing the Custom Function!";
constexpr std::u16string_view kLoadFault = u"Some errors occurred when Loading the Custom Function!";
constexpr std::u16string_view kErrorTitle = u"Error Information";

// A run-time fault inside a save or a delete: the write of a file or an index
// out of range ends the procedure with what is done staying done.
struct DocumentFault : std::runtime_error {
    DocumentFault() : std::runtime_error("document not written") {}
};

std::u16string ReplaceAll(std::u16string_view text, std::u16string_view from, std::u16string_view to) {
    std::u16string result;
    std::size_t start = 0;
    for (std::size_t at = text.find(from); at != std::u16string_view::npos; at = text.find(from, start)) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    result.append(text.substr(start));
    return result;
}

FunctionListRow ListRow(const CustomFunctionDocument& document) {
    return {document.Name, ReplaceAll(document.Description, u"\r\n", u"    ")};
}

}  // namespace

FolderReadResult FolderDocumentStore::LoadAll() { return ReadFunctionFolder(folder_); }
bool FolderDocumentStore::Write(const CustomFunctionDocument& document) {
    return WriteFunctionDocument(folder_, document);
}
bool FolderDocumentStore::Delete(std::u16string_view name) { return DeleteFunctionDocument(folder_, name); }

FunctionManagerModel::ButtonText FunctionManagerModel::Text(ManagerButton button) {
    switch (button) {
        case ManagerButton::New:
            return {u"New", u"Create new custom function"};
        case ManagerButton::Edit:
            return {u"Edit", u"Edit the selected custom function"};
        case ManagerButton::Delete:
            return {u"Delete", u"Delete the selected custom function"};
        case ManagerButton::Insert:
            return {u"Insert to Input Area", u"Insert the selected custom function to Input Area"};
        case ManagerButton::Close:
            return {u"Close", u""};
        case ManagerButton::Ok:
            return {u"Save", u""};
        case ManagerButton::Cancel:
            return {u"Cancel", u""};
    }
    return {u"", u""};
}

FunctionManagerModel::FunctionManagerModel(EngineState& engine, FunctionDocumentStore& store, FunctionManagerHost& host)
    : engine_(engine), store_(store), host_(host), menu_{{u"Add New...", u""}, {u"-", u""}} {}

std::u16string FunctionManagerModel::QuickReferenceText(const CustomFunctionDocument& document) {
    return u"Function:" + document.Name + u"(" + document.ParameterText + u")\r\nDescription:" + document.Description;
}

ManagerState FunctionManagerModel::State() const {
    if (!editing_) return ManagerState::List;
    return editMode_ == 0 ? ManagerState::New : ManagerState::Edit;
}

bool FunctionManagerModel::ButtonEnabled(ManagerButton button) const {
    switch (button) {
        case ManagerButton::New:
            return newEnabled_;
        case ManagerButton::Edit:
            return editEnabled_;
        case ManagerButton::Delete:
            return deleteEnabled_;
        case ManagerButton::Ok:
        case ManagerButton::Cancel:
            return okCancelEnabled_;
        default:
            return true;
    }
}

void FunctionManagerModel::Load() {
    const auto command = changes_.Begin();
    SetLocks(true, true);
    okCancelEnabled_ = false;
    AbledControl(true);
    init();
    BuildFunctionMenu();
}

void FunctionManagerModel::init() {
    ReadCustomFunction();
    SetCustomFuncitontoList();
    editEnabled_ = deleteEnabled_ = functionCount_ != 0;
    changes_.Mark(FunctionManagerChange::Controls);
}

// The store reads the whole folder into its staging list first; only when
// every file could be read do the documents enter the window and the engine.
void FunctionManagerModel::ReadCustomFunction() {
    FolderReadResult read = store_.LoadAll();
    documents_.assign(1, CustomFunctionDocument{});
    if (read.failed) {
        functionCount_ = 0;
        host_.ShowNotice(kLoadFault, kErrorTitle);
        return;
    }
    functionCount_ = static_cast<std::int32_t>(read.documents.size());
    for (CustomFunctionDocument& document : read.documents) {
        documents_.push_back(std::move(document));
        DefineDocument(engine_, documents_.back());
    }
}

void FunctionManagerModel::SetCustomFuncitontoList() {
    for (std::size_t slot = 1; slot < documents_.size(); ++slot) AddListRow(documents_[slot]);
}

void FunctionManagerModel::AddListRow(const CustomFunctionDocument& document) {
    rows_.push_back(ListRow(document));
    if (selectedRow_ == 0) selectedRow_ = 1;  // the list keeps a row selected while it has any
    changes_.Mark(FunctionManagerChange::Rows);
}

void FunctionManagerModel::AbledControl(bool enabled) {
    deleteEnabled_ = newEnabled_ = editEnabled_ = enabled;
    DisableEditAndDeleteWithoutFunctions();
}

void FunctionManagerModel::DisableEditAndDeleteWithoutFunctions() {
    if (functionCount_ == 0) editEnabled_ = deleteEnabled_ = false;
    changes_.Mark(FunctionManagerChange::Controls);
}

bool FunctionManagerModel::IsSelected() const { return !rows_.empty() && selectedRow_ >= 1; }

const std::u16string& FunctionManagerModel::SelectedText() const {
    return rows_[static_cast<std::size_t>(selectedRow_ - 1)].Name;
}

std::int32_t FunctionManagerModel::FindListRow(std::u16string_view name) const {
    const std::u16string wanted = AsciiLower(TrimBlanks(name));
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (AsciiLower(TrimBlanks(rows_[i].Name)) == wanted) return static_cast<std::int32_t>(i + 1);
    }
    return 0;
}

void FunctionManagerModel::SetLocks(bool name, bool others) {
    locked_ = {name, others, others, others};
    changes_.Mark(FunctionManagerChange::Controls);
}

void FunctionManagerModel::SetFieldText(FunctionField field, std::u16string text) {
    fields_[Index(field)] = std::move(text);
}

void FunctionManagerModel::SelectRow(std::int32_t row) {
    const auto command = changes_.Begin();
    selectedRow_ = (row >= 1 && row <= static_cast<std::int32_t>(rows_.size())) ? row : 0;
    changes_.Mark(FunctionManagerChange::Selection);
}

void FunctionManagerModel::ClickList() {
    const auto command = changes_.Begin();
    if (!editing_ && IsSelected()) {
        const std::int32_t row = std::max(FindListRow(SelectedText()), 1);
        if (static_cast<std::size_t>(row) < documents_.size()) {
            const CustomFunctionDocument& document = documents_[static_cast<std::size_t>(row)];
            fields_ = {document.Name, document.ParameterText, document.Expression, document.Description};
        }
    }
    if (functionCount_ == 0) fields_ = {};
    changes_.Mark(FunctionManagerChange::Fields);
}

void FunctionManagerModel::cmdLedBtn(int index) {
    const auto command = changes_.Begin();
    expanded_ = index != 0;
    changes_.Mark(FunctionManagerChange::Height);
}

void FunctionManagerModel::FitHeights(std::int32_t collapsed, std::int32_t expanded) {
    const auto command = changes_.Begin();
    collapsedHeight_ = std::max(kCollapsedHeight, collapsed);
    expandedHeight_ = std::max(kExpandedHeight, expanded);
    changes_.Mark(FunctionManagerChange::Height);
}

void FunctionManagerModel::Resize(std::int32_t height) { cmdLedBtn(height <= collapsedHeight_ ? 0 : 1); }

void FunctionManagerModel::EnterEditing(std::int32_t mode) {
    editMode_ = mode;
    editing_ = true;
    AbledControl(false);
    okCancelEnabled_ = true;
    changes_.Mark(FunctionManagerChange::Controls);
    cmdLedBtn(1);
}

void FunctionManagerModel::cmdNew() {
    const auto command = changes_.Begin();
    SetLocks(false, false);
    fields_ = {};
    changes_.Mark(FunctionManagerChange::Fields);
    EnterEditing(0);
}

void FunctionManagerModel::cmdEdit() {
    const auto command = changes_.Begin();
    if (!IsSelected()) return;
    ClickList();
    SetLocks(true, false);  // a function keeps its name
    EnterEditing(1);
}

void FunctionManagerModel::cmdOK() {
    const auto command = changes_.Begin();
    const bool ok = editMode_ == 0 ? SaveNewFunction() : SaveEditedFunction();
    if (!ok) return;
    AfterSave();
    editing_ = false;
    changes_.Mark(FunctionManagerChange::Controls);
}

void FunctionManagerModel::AfterSave() {
    SetLocks(true, true);
    AbledControl(true);
    okCancelEnabled_ = false;
    changes_.Mark(FunctionManagerChange::Controls);
}

void FunctionManagerModel::cmdCancel() {
    const auto command = changes_.Begin();
    if (!host_.Confirm(u"Really don't save the changed information?", u"Information")) return;
    editing_ = false;
    AfterSave();
    ClickList();
}

void FunctionManagerModel::cmdInsert() {
    if (!IsSelected()) return;
    host_.InsertFunction(SelectedText() + u"()");
    const auto row = static_cast<std::size_t>(FindListRow(SelectedText()));
    if (row < documents_.size()) host_.SetQuickReference(QuickReferenceText(documents_[row]));
}

void FunctionManagerModel::cmdClose() { host_.SetFunctionManagerOption(false); }

void FunctionManagerModel::BuildFunctionMenu() {
    for (std::size_t slot = 1; slot < documents_.size(); ++slot) {
        menu_.push_back({documents_[slot].Name, QuickReferenceText(documents_[slot])});
    }
    changes_.Mark(FunctionManagerChange::Menu);
}

void FunctionManagerModel::ClearFunctionMenu() { menu_.resize(2); }

CustomFunctionDocument FunctionManagerModel::TrimmedFields() const {
    return {std::u16string(TrimBlanks(fields_[0])), std::u16string(TrimBlanks(fields_[1])),
            std::u16string(TrimBlanks(fields_[2])), std::u16string(TrimBlanks(fields_[3]))};
}

void FunctionManagerModel::ShowSaveFault() { host_.ShowNotice(kSaveFault, kErrorTitle); }

void FunctionManagerModel::WriteDocument(const CustomFunctionDocument& document) {
    if (!store_.Write(document)) throw DocumentFault();
}

// The engine gets the boxes' text as it stands, notes and line ends included;
// the second pass through DefineDocument is refused quietly, the name being
// taken by then.
bool FunctionManagerModel::SaveNewFunction() {
    if (TrimBlanks(fields_[0]).empty() || TrimBlanks(fields_[2]).empty()) {
        host_.ShowNotice(kEmptyFieldsMessage, u"Information");
        return false;
    }
    const bool earlierShowErrorBox = engine_.ShowErrorBox;
    engine_.ShowErrorBox = true;
    bool ok = false;
    try {
        if (DefineCustomFunction(engine_, fields_[0], fields_[1], fields_[2], fields_[3])) {
            ++functionCount_;
            const CustomFunctionDocument document = TrimmedFields();
            ClearFunctionMenu();
            documents_.resize(static_cast<std::size_t>(functionCount_) + 1);
            documents_.back() = document;
            BuildFunctionMenu();
            AddListRow(document);
            DefineDocument(engine_, document);
            WriteDocument(document);
            ok = true;
        }
    } catch (const std::exception&) {
        ShowSaveFault();
        return false;
    }
    engine_.ShowErrorBox = earlierShowErrorBox;
    return ok;
}

// The engine gets the joined form; the engine's index of the name is taken as
// the slot and the row, even where rows and engine positions differ.
bool FunctionManagerModel::SaveEditedFunction() {
    if (TrimBlanks(fields_[0]).empty() || TrimBlanks(fields_[2]).empty()) {
        host_.ShowNotice(kEmptyFieldsMessage, u"Information");
        return false;
    }
    const bool earlierShowErrorBox = engine_.ShowErrorBox;
    engine_.ShowErrorBox = true;
    bool ok = false;
    try {
        const CustomFunctionDocument document = TrimmedFields();
        const std::u16string name = ReplaceAll(document.Name, u"\r\n", u" ");
        const std::u16string parameters = ReplaceAll(document.ParameterText, u"\r\n", u" ");
        const std::u16string expression = PrepareExpressionList(document.Expression);
        if (RedefineCustomFunction(engine_, name, parameters, expression, document.Description)) {
            const auto slot = static_cast<std::size_t>(FindCustomFunctionIndex(engine_, name));
            documents_.at(slot) = document;
            rows_.at(slot - 1) = ListRow(document);
            changes_.Mark(FunctionManagerChange::Rows);
            WriteDocument(document);
            ok = true;
            ClearFunctionMenu();
            BuildFunctionMenu();
        }
    } catch (const std::exception&) {
        ShowSaveFault();
        return false;
    }
    engine_.ShowErrorBox = earlierShowErrorBox;
    return ok;
}

void FunctionManagerModel::cmdDelete() {
    const auto command = changes_.Begin();
    if (!IsSelected()) return;
    if (host_.Confirm(u"Really removing the selected custom function: " + SelectedText() + u" ?", u"Information")) {
        DeleteSelectedFunction();
        ClickList();
    }
    if (functionCount_ == 0) DisableEditAndDeleteWithoutFunctions();
}

void FunctionManagerModel::DeleteSelectedFunction() {
    if (!IsSelected()) return;
    const std::u16string name = SelectedText();
    const std::int32_t row = FindListRow(name);
    if (row == 0) return;
    try {
        if (!DropCustomFunction(engine_, name)) {
            host_.ShowNotice(kRemoveFault, kErrorTitle);
            return;
        }
        for (std::int32_t k = row; k <= functionCount_ - 1; ++k) {
            documents_.at(static_cast<std::size_t>(k)) = documents_.at(static_cast<std::size_t>(k) + 1);
        }
        --functionCount_;
        ClearFunctionMenu();
        documents_.resize(static_cast<std::size_t>(functionCount_) + 1);
        BuildFunctionMenu();
        RemoveListRow(row);
        if (!store_.Delete(name)) throw DocumentFault();
    } catch (const std::exception&) {
        host_.ShowNotice(kRemoveFault, kErrorTitle);
    }
}

void FunctionManagerModel::RemoveListRow(std::int32_t row) {
    rows_.erase(rows_.begin() + (row - 1));
    selectedRow_ = std::min(selectedRow_, static_cast<std::int32_t>(rows_.size()));
    changes_.Mark(FunctionManagerChange::Rows);
}

}  // namespace tessarondel
