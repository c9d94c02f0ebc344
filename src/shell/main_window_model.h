#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "customfunctions/change_batch.h"
#include "engine/engine_state.h"
#include "shell/catalogue.h"
#include "shell/desktop_services.h"
#include "shell/expression_list.h"
#include "shell/input_area.h"
#include "shell/input_history.h"
#include "shell/keypad.h"
#include "shell/message_box.h"
#include "shell/panel_layout.h"
#include "shell/result_display.h"
#include "shell/result_list.h"
#include "shell/session_history.h"
#include "shell/variable_window_model.h"

namespace tessarondel {

// The state groups of the window, in the order they are drawn. A command marks
// what it changed and the window redraws those groups once, after the command.
// A list is only ever appended to or cleared whole; a clear is drawn before
// the rows added after it.
enum class MainWindowChange {
    InputArea,           // text, selection (caret)
    Display,             // text and look of the result display
    BaseOptions,         // OptBaseNum visibility and selection, chkFormatNeg and its label
    Approximate,         // comApproximateBit selection and tool tip
    QuickReference,      // its text
    QuickReferencePair,  // cmdLedBtn pair, QuickReference and PanelQR visibility
    Layout,              // panel geometry and visibility, window height
    ExpressionListCleared,
    ExpressionRowAdded,  // rows were appended to ExpressionList
    ExpressionSelection,
    ResultListCleared,
    ResultItemAdded,  // items were appended to the Result List
    Options,          // chkOpt states, side window visibility, check marks of the main menu
    StayOnTop,
    WindowPosition,
    WindowShown,     // WindowShownState
    FocusInputArea,  // the keyboard focus goes to the InputArea, last of all
};

// What the window asks of the desktop: other windows and the end. These are
// events, not state, and are handled at once.
enum class MainWindowRequest {
    OptionsDialog,
    About,
    CheckForUpdate,
    Exit,
    HelpWindow,  // the manual, at ManualPage(), in the program's own help window
};

enum OptionIndex : int {
    OptionExpressionList = 0,
    OptionVariableList = 1,
    OptionFunctionManager = 2,
    OptionInputPanel = 3,
    OptionStayOnTop = 4,
};

// The window-state texts of the settings section FormInfo.
struct FormInfoTexts {
    std::u16string X = u"None";
    std::u16string Y = u"None";
    std::u16string EL = u"1";
    std::u16string IP = u"1";
    std::u16string QR = u"1";
    std::u16string SOT = u"0";

    friend bool operator==(const FormInfoTexts&, const FormInfoTexts&) = default;
};

// The maker's addresses are configuration, e.g. "support@example.org" and
// "http://www.example.org".
struct MakerAddresses {
    std::u16string SupportMailbox;
    std::u16string Mailbox;
    std::u16string WebServer;
};

struct ShellPlatform {
    MessageBox& Box;
    Clipboard& Clip;
    SaveFileDialog& SaveDialog;
    ShellOpener& Opener;
};

struct ShellEnvironment {
    std::filesystem::path ProgramDirectory;
    MakerAddresses Maker;
};

struct ScreenSize {
    std::int32_t Width = 0;   // twips
    std::int32_t Height = 0;  // twips
};

// frmMain's logic: the evaluate flow, the lists, the input area and its
// history, the display, the keypad, the catalogues, the options and panels.
// Every handler of the window is one operation here. A command marks the state
// groups it changes; the window draws them once, when the outermost command
// returns.
class MainWindowModel final : public VariableWindowHost {
public:
    static constexpr const char16_t* kTitle = u"Tessarondel";
    static constexpr const char16_t* kInitialQuickReference = u"Quick Reference\r\n";
    static constexpr const char16_t* kErrorBoxTitle = u"Tessarondel Error Information";
    static constexpr const char16_t* kSaveFilter = u"Tessarondel Expression Text(*.txt)|*.txt";

    MainWindowModel(EngineState& engine, ShellPlatform platform, ShellEnvironment environment);
    void SetListener(ChangeBatch<MainWindowChange>::Listener listener) { changes_.SetListener(std::move(listener)); }
    void SetRequestHandler(std::function<void(MainWindowRequest)> handler) { requests_ = std::move(handler); }

    // --- State --------------------------------------------------------------
    const InputArea& Input() const { return input_; }
    const InputHistory& History() const { return history_; }
    const ExpressionList& Expressions() const { return expressions_; }
    const ResultList& Results() const { return results_; }
    const ResultDisplay& Display() const { return display_; }
    const std::u16string& QuickReference() const { return quickReference_; }
    const PanelLayout& Layout() const { return layout_; }
    const CatalogueMenus& Menus() const { return menus_; }
    VariableWindowModel& Variables() { return variables_; }
    const VariableWindowModel& Variables() const { return variables_; }

    bool HasVariables() const { return hasVariables_; }
    double LastValue() const { return lastValue_; }
    bool ClearAllActive() const override { return clearAllActive_; }
    bool QuickRefShown() const { return quickRefShown_; }
    // cmdLedBtn(index) visibility; one of the two at a time.
    bool QuickReferenceButtonVisible(int index) const { return quickRefShown_ == (index == 0); }
    bool Option(int index) const { return options_.at(static_cast<std::size_t>(index)); }
    bool VariableWindowVisible() const { return Option(OptionVariableList); }
    bool FunctionManagerVisible() const { return Option(OptionFunctionManager); }
    std::int32_t WindowShownState() const { return windowShownState_; }
    bool ProxyDialogOpen() const { return proxyDialogOpen_; }
    double WindowLeft() const { return windowLeft_; }
    double WindowTop() const { return windowTop_; }
    // The manual's first page, once Help has found it.
    const std::filesystem::path& ManualPage() const { return manualPage_; }

    // --- Start and end ------------------------------------------------------
    // The window's load: flags, InitAll, position, stored options, Quick Reference.
    void Load(const FormInfoTexts& settings, ScreenSize screen);
    void InitAll();
    // What is stored at exit.
    FormInfoTexts CurrentFormInfo() const;
    void SetWindowPosition(double left, double top);
    void SetProxyDialogOpen(bool open) { proxyDialogOpen_ = open; }
    // The lists, the inputs, the variables and the last answer, to keep between runs.
    SessionHistory SaveHistory() const;
    // Puts a kept session back after Load: evaluates nothing and adds no rows of its own.
    void RestoreHistory(const SessionHistory& saved);

    // --- Evaluate flow and expression list ----------------------------------
    void Evaluate();
    void ClickEvaluate();  // Evaluate, then the focus
    void SelectExpressionRow(std::optional<std::size_t> row);
    void cmdlvOutput(int index);
    void DoubleClickExpressionList();
    void ChooseResultListItem(std::size_t index);

    // --- Input area ----------------------------------------------------------
    void InsertToken(std::u16string_view token) override;
    void InsertFunction(std::u16string_view text);
    void SetQuickReference(std::u16string text);
    // The user typed: the box reports its text and selection.
    void EditInput(std::u16string text, std::size_t selectionStart, std::size_t selectionLength);
    void SetInputSelection(std::size_t start, std::size_t length);
    void PressEnter() { ClickEvaluate(); }
    void PressUp();
    void PressDown();
    void ClickKeypad(KeypadGroup group, int index);
    void ClickClearInput();
    void PasteFromClipboard();
    void CopyResultToClipboard();

    // --- Result display -------------------------------------------------------
    void ShowResultInBase(int index);
    void FocusBaseOption(int index);  // the user picks OptBaseNum(index)
    void ClickFormatNeg(bool checked);
    void ClickFormatNegLabel();
    void DoubleClickDisplay();
    void SelectApproximate(int index);
    void ClickQuickReferenceButton(int index);

    // --- Catalogues and clear commands ---------------------------------------
    void ChooseFunction(int group, int index);
    void ChooseConstant(int group, int index);
    void mnuCO(int index);
    void ClickCustomFunctions();

    // --- Options, panels, help, information, main menu -----------------------
    // Sets chkOpt(index); a change runs its click handler.
    void SetOption(int index, bool checked) override;
    void ClickOption(int index) { SetOption(index, !Option(index)); }
    void ArrangePanels();
    void ClickHelp();
    void ChooseInformation(int index);
    void ClickLogo();
    void ClickOptions() { Request(MainWindowRequest::OptionsDialog); }
    void ClickExit() { Request(MainWindowRequest::Exit); }
    void ChooseMainMenu(int index);
    void ToggleWindowShown();
    // Shows the window as the tray's Show does, whatever its state: a later
    // launch of the program asked for it.
    void ShowWindow();
    // Closing by the frame is refused and hides (or shows) the window instead.
    void CloseByFrame() { ToggleWindowShown(); }

private:
    // The boxes of the window and of its variable list: each opens as a modal
    // step of the running command.
    class ModalBox final : public MessageBox {
    public:
        ModalBox(MessageBox& box, ChangeBatch<MainWindowChange>& changes) : box_(box), changes_(changes) {}
        MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                           MessageIcon icon) override {
            return changes_.Modal([&] { return box_.Show(text, title, buttons, icon); });
        }

    private:
        MessageBox& box_;
        ChangeBatch<MainWindowChange>& changes_;
    };

    void Mark(MainWindowChange change) { changes_.Mark(change); }
    void Request(MainWindowRequest request);
    void ChangeInputText(std::u16string text);
    void SetDisplayText(std::u16string text);
    void ShowBaseOptions(bool visible);
    void RefreshVariables();
    void RestoreVariables(const std::vector<SavedVariable>& saved);
    void ClearExpressionList();
    void ClearHistory();
    void ClearAll();
    void CopySelectedExpression();
    void InsertSelectedExpression();
    void SaveExpressionList();
    void OpenProgramFile(std::u16string_view fileName, std::u16string_view missingMessage);
    void OpenWithDesktop(std::u16string_view target);
    void RunOptionHandler(int index);
    void ShowSideWindow(int mainMenuItem, bool shown);
    std::u16string HomePage() const;

    EngineState& engine_;
    ChangeBatch<MainWindowChange> changes_;
    std::function<void(MainWindowRequest)> requests_;
    ModalBox modalBox_;
    ShellPlatform platform_;
    ShellEnvironment environment_;

    InputArea input_;
    InputHistory history_;
    ExpressionList expressions_;
    ResultList results_;
    ResultDisplay display_;
    VariableWindowModel variables_;
    CatalogueMenus menus_;
    PanelLayout layout_;
    std::u16string quickReference_ = kInitialQuickReference;

    bool hasVariables_ = false;
    double lastValue_ = 0.0;
    std::u16string resultText_;
    bool clearAllActive_ = false;
    bool quickRefShown_ = true;
    std::array<bool, 5> options_{true, false, false, true, false};
    std::int32_t windowShownState_ = 0;
    bool proxyDialogOpen_ = false;
    double windowLeft_ = 0.0;
    double windowTop_ = 0.0;
    std::vector<VariableRecord> snapshot_;
    std::filesystem::path manualPage_;
};

}  // namespace tessarondel
