// frmMain: the input area, the keypad, the display's events and the
// catalogue menus.
#include "numbers/text_rules.h"
#include "shell/main_window_model.h"
#include "shell/token_explanations.h"

namespace tessarondel {

void MainWindowModel::ChangeInputText(std::u16string text) {
    input_.SetText(std::move(text));
    history_.OnInputChanged(input_.Text());
    Mark(MainWindowChange::InputArea);
}

void MainWindowModel::EditInput(std::u16string text, std::size_t selectionStart, std::size_t selectionLength) {
    input_.SetText(std::move(text));
    input_.SetSelection(selectionStart, selectionLength);
    history_.OnInputChanged(input_.Text());
}

void MainWindowModel::SetInputSelection(std::size_t start, std::size_t length) { input_.SetSelection(start, length); }

void MainWindowModel::SetQuickReference(std::u16string text) {
    const auto command = changes_.Begin();
    quickReference_ = std::move(text);
    Mark(MainWindowChange::QuickReference);
}

void MainWindowModel::InsertToken(std::u16string_view token) {
    const auto command = changes_.Begin();
    input_.ReplaceSelection(token);
    history_.OnInputChanged(input_.Text());
    Mark(MainWindowChange::InputArea);
    Mark(MainWindowChange::FocusInputArea);
    const std::u16string_view trimmed = TrimBlanks(token);
    std::u16string reference = u"Insert Object:";
    reference += trimmed;
    reference += u"\r\n";
    reference += TokenExplanation(trimmed);
    SetQuickReference(std::move(reference));
}

void MainWindowModel::InsertFunction(std::u16string_view text) {
    const auto command = changes_.Begin();
    const std::size_t start = input_.SelectionStart();
    input_.ReplaceSelection(text);
    const std::size_t bracket = text.find(u'(');
    input_.SetSelection(bracket == std::u16string_view::npos ? start : start + bracket + 1, 0);
    history_.OnInputChanged(input_.Text());
    Mark(MainWindowChange::InputArea);
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::PressUp() {
    const auto command = changes_.Begin();
    if (history_.StepUp()) ChangeInputText(history_.EntryOnShow());
}

void MainWindowModel::PressDown() {
    const auto command = changes_.Begin();
    if (history_.StepDown()) ChangeInputText(history_.EntryOnShow());
}

void MainWindowModel::ClickKeypad(KeypadGroup group, int index) {
    const auto command = changes_.Begin();
    const std::u16string text = KeypadInsertText(group, index);
    if (group != KeypadGroup::Function) return InsertToken(text);
    InsertFunction(text);
    SetQuickReference(u"Insert Object:" + std::u16string(KeypadCaptions(group)[static_cast<std::size_t>(index)]) +
                      u"\r\nTessarondel Built-In Functions.");
}

void MainWindowModel::ClickClearInput() {
    const auto command = changes_.Begin();
    ChangeInputText(u"");
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::PasteFromClipboard() {
    const auto command = changes_.Begin();
    ChangeInputText(platform_.Clip.GetText());
}

void MainWindowModel::CopyResultToClipboard() { platform_.Clip.SetText(display_.Text()); }

void MainWindowModel::ShowResultInBase(int index) {
    const auto command = changes_.Begin();
    display_.ShowResultInBase(index, lastValue_, resultText_);
    Mark(MainWindowChange::Display);
    Mark(MainWindowChange::BaseOptions);
}

void MainWindowModel::FocusBaseOption(int index) {
    const auto command = changes_.Begin();
    display_.SelectBase(index);
    if (!engine_.ErrorFlag) ShowResultInBase(index);
    Mark(MainWindowChange::BaseOptions);
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::ClickFormatNeg(bool checked) {
    const auto command = changes_.Begin();
    display_.SetFormatNegChecked(checked);
    ShowResultInBase(display_.SelectedBase());
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::ClickFormatNegLabel() { ClickFormatNeg(!display_.FormatNegChecked()); }

void MainWindowModel::DoubleClickDisplay() {
    const auto command = changes_.Begin();
    if (engine_.ErrorFlag) return;
    const std::u16string bracketed = u"(" + std::u16string(TrimBlanks(display_.Text())) + u")";
    InsertToken(bracketed);
    platform_.Clip.SetText(display_.Text());
    SetQuickReference(u"Insert Object:" + bracketed + u"\r\nThe last answer.");
}

void MainWindowModel::SelectApproximate(int index) {
    const auto command = changes_.Begin();
    display_.SelectApproximate(index);
    Mark(MainWindowChange::Approximate);
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::ChooseFunction(int group, int index) {
    const auto command = changes_.Begin();
    const MenuItem& item = menus_.Functions.at(static_cast<std::size_t>(group)).at(static_cast<std::size_t>(index));
    if (item.IsSeparator()) return;
    InsertFunction(item.Caption + u"()");
    SetQuickReference(item.Tag);
}

void MainWindowModel::ChooseConstant(int group, int index) {
    const auto command = changes_.Begin();
    if (group == kCustomConstantGroup && index == 0) {
        platform_.Box.Show(u"fdsl", kTitle, MessageButtons::Ok, MessageIcon::None);
        return;
    }
    const MenuItem& item = menus_.Constants.at(static_cast<std::size_t>(group)).at(static_cast<std::size_t>(index));
    if (item.IsSeparator()) return;
    InsertToken(u" " + item.Tag + u" ");
    const ConstantGroup& catalogue = ConstantCatalogue()[static_cast<std::size_t>(group)];
    SetQuickReference(std::u16string(catalogue.Header) + u"\r\n" + item.Caption + u"=" + item.Tag);
}

void MainWindowModel::ClickCustomFunctions() { SetOption(OptionFunctionManager, true); }

}  // namespace tessarondel
