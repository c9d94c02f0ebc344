// frmMain: start-up, options and panels, help, the Information and main menus.
#include "shell/main_window_model.h"

#include "numbers/number_text.h"
#include "numbers/primitives.h"
#include "numbers/run_failure.h"
#include "numbers/text_rules.h"
#include "shell/desktop_open.h"
#include "shell/installed_documents.h"

namespace tessarondel {
namespace {

// A setting's numeric value by the text-to-number rule: no number gives 0.
double SettingNumber(std::u16string_view text) {
    try {
        return LeadingNumber(text);
    } catch (const std::runtime_error&) {
        return 0.0;
    }
}

bool SettingChecked(std::u16string_view text) { return Floor(SettingNumber(text)) != 0; }

std::u16string FlagText(bool on) { return on ? u"1" : u"0"; }

}  // namespace

MainWindowModel::MainWindowModel(EngineState& engine, ShellPlatform platform, ShellEnvironment environment)
    : engine_(engine),
      modalBox_(platform.Box, changes_),
      platform_{modalBox_, platform.Clip, platform.SaveDialog, platform.Opener},
      environment_(std::move(environment)),
      display_(engine),
      variables_(engine, modalBox_, *this) {
    tessarondel::ArrangePanels(layout_);
}

// A dialog or the end runs after what the command changed is drawn.
void MainWindowModel::Request(MainWindowRequest request) {
    changes_.Modal([&] {
        if (requests_) requests_(request);
    });
}

void MainWindowModel::Load(const FormInfoTexts& settings, ScreenSize screen) {
    const auto command = changes_.Begin();
    windowShownState_ = 1;
    proxyDialogOpen_ = false;
    InitAll();
    windowLeft_ = settings.X != u"None" ? SettingNumber(settings.X) : (screen.Width - layout_.WindowWidth) / 2.0;
    windowTop_ = settings.Y != u"None" ? SettingNumber(settings.Y) : (screen.Height - layout_.WindowHeight) / 2.0;
    Mark(MainWindowChange::WindowPosition);
    SetOption(OptionExpressionList, SettingChecked(settings.EL));
    SetOption(OptionInputPanel, SettingChecked(settings.IP));
    SetOption(OptionStayOnTop, SettingChecked(settings.SOT));
    ClickQuickReferenceButton(SettingChecked(settings.QR) ? 1 : 0);
    Mark(MainWindowChange::WindowShown);
}

void MainWindowModel::InitAll() {
    const auto command = changes_.Begin();
    engine_.ShowErrorBox = true;
    engine_.ErrorBoxTitle = kErrorBoxTitle;
    menus_ = initMenu();
    SelectApproximate(0);  // initApproximateCom: "Off" before the first evaluation
    expressions_.Clear();
    ClearHistory();
    results_.ClearResultList();
    lastValue_ = 0.0;
    engine_.ErrorBoxTitle = kErrorBoxTitle;
    engine_.ShowErrorBox = false;
}

FormInfoTexts MainWindowModel::CurrentFormInfo() const {
    return {std::u16string(TrimBlanks(NumberText(windowLeft_))),
            std::u16string(TrimBlanks(NumberText(windowTop_))),
            FlagText(Option(OptionExpressionList)),
            FlagText(Option(OptionInputPanel)),
            FlagText(quickRefShown_),
            FlagText(Option(OptionStayOnTop))};
}

void MainWindowModel::SetWindowPosition(double left, double top) {
    windowLeft_ = left;
    windowTop_ = top;
}

void MainWindowModel::SetOption(int index, bool checked) {
    const auto command = changes_.Begin();
    bool& option = options_.at(static_cast<std::size_t>(index));
    if (option == checked) return;
    option = checked;
    RunOptionHandler(index);
}

void MainWindowModel::RunOptionHandler(int index) {
    switch (index) {
        case OptionExpressionList:
            layout_.ExpressionList.Visible = Option(index);
            ArrangePanels();
            break;
        case OptionVariableList:
            ShowSideWindow(2, Option(index));
            break;
        case OptionFunctionManager:
            ShowSideWindow(3, Option(index));
            break;
        case OptionInputPanel:
            layout_.InputPanel.Visible = Option(index);
            ArrangePanels();
            break;
        default:
            Mark(MainWindowChange::StayOnTop);
            break;
    }
    Mark(MainWindowChange::Options);
    Mark(MainWindowChange::FocusInputArea);
}

void MainWindowModel::ShowSideWindow(int mainMenuItem, bool shown) {
    const auto item = static_cast<std::size_t>(mainMenuItem);
    if (item < menus_.Main.size()) menus_.Main[item].Checked = shown;
}

void MainWindowModel::ArrangePanels() {
    const auto command = changes_.Begin();
    tessarondel::ArrangePanels(layout_);
    Mark(MainWindowChange::Layout);
}

void MainWindowModel::ClickQuickReferenceButton(int index) {
    const auto command = changes_.Begin();
    quickRefShown_ = index != 0;
    layout_.InputPanel.Height =
        quickRefShown_ ? PanelLayout::kInputPanelWithQuickReference : PanelLayout::kInputPanelWithoutQuickReference;
    Mark(MainWindowChange::QuickReferencePair);
    ArrangePanels();
    Mark(MainWindowChange::FocusInputArea);
}

// Readme and Changes: the installed text, wherever the install put it; the
// message names the place beside the program.
void MainWindowModel::OpenProgramFile(std::u16string_view fileName, std::u16string_view missingMessage) {
    const std::filesystem::path name(fileName);
    if (const auto file = FindInstalledDocument(environment_.ProgramDirectory, name)) {
        OpenWithDesktop(file->u16string());
    } else {
        const std::filesystem::path beside = environment_.ProgramDirectory / name;
        ShowNotice(platform_.Box, std::u16string(missingMessage) + beside.u16string(), u"Information");
    }
}

void MainWindowModel::OpenWithDesktop(std::u16string_view target) {
    tessarondel::OpenWithDesktop(platform_.Opener, platform_.Box, target);
}

// help.chm beside the program when the desktop can open it; else the manual
// in the program's own window; the missing-file notice only when neither is there.
void MainWindowModel::ClickHelp() {
    const std::filesystem::path chm = environment_.ProgramDirectory / "help.chm";
    const bool chmFound = FileExistsOnDisk(chm);
    if (chmFound && platform_.Opener.ShellOpen(chm.u16string())) return;
    if (const auto manual = FindInstalledDocument(environment_.ProgramDirectory, kManualIndex)) {
        manualPage_ = *manual;
        Request(MainWindowRequest::HelpWindow);
    } else if (chmFound) {
        ShowNotice(platform_.Box, std::u16string(kCanNotOpen) + chm.u16string(), u"Information");
    } else {
        ShowNotice(platform_.Box, u"Can not find the file " + chm.u16string(), u"Information");
    }
}

std::u16string MainWindowModel::HomePage() const { return environment_.Maker.WebServer + u"/tq/index.htm"; }

void MainWindowModel::ClickLogo() { OpenWithDesktop(HomePage()); }

void MainWindowModel::ChooseInformation(int index) {
    const MakerAddresses& maker = environment_.Maker;
    switch (index) {
        case 0:
            OpenProgramFile(u"ReadMe.txt", u"Can not find the Readme file ");
            break;
        case 1:
            OpenProgramFile(u"ChangesLog.txt", u"Can not find the file ");
            break;
        case 3:
            OpenWithDesktop(u"mailto:" + maker.SupportMailbox + u"?subject=Tessarondel Bug Report");
            break;
        case 4:
            OpenWithDesktop(u"mailto:" + maker.Mailbox + u"?subject=Suggest a feature for Tessarondel");
            break;
        case 6:
            OpenWithDesktop(HomePage());
            break;
        case 7:
            Request(MainWindowRequest::CheckForUpdate);
            break;
        case 9:
            Request(MainWindowRequest::About);
            break;
        default:
            break;
    }
}

void MainWindowModel::ChooseMainMenu(int index) {
    const auto command = changes_.Begin();
    switch (index) {
        case 0:
            ToggleWindowShown();
            break;
        case 2:
            ClickOption(OptionVariableList);
            break;
        case 3:
            ClickOption(OptionFunctionManager);
            break;
        case 5:
            ClickOptions();
            break;
        case 6:
            Request(MainWindowRequest::About);
            break;
        case 8:
            ClickExit();
            break;
        default:
            break;
    }
}

void MainWindowModel::ToggleWindowShown() {
    const auto command = changes_.Begin();
    windowShownState_ = (windowShownState_ + 1) % 2;
    Mark(MainWindowChange::WindowShown);
}

void MainWindowModel::ShowWindow() {
    const auto command = changes_.Begin();
    windowShownState_ = 1;
    Mark(MainWindowChange::WindowShown);
}

}  // namespace tessarondel
