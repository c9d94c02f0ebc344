#include "platform/desktop_application.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

#include "platform/about_dialog.h"
#include "platform/proxy_dialog.h"
#include "platform/twips.h"

namespace tessarondel {

DesktopApplication::DesktopApplication(QtSettingsStore& store, DesktopConfiguration configuration)
    : store_(store),
      configuration_(std::move(configuration)),
      mainModel_(engine_, {box_, clipboard_, saveDialog_, opener_},
                 {configuration_.ProgramDirectory, configuration_.Maker}),
      documents_(configuration_.FunctionFolder),
      managerHost_(mainModel_, box_),
      managerModel_(engine_, documents_, managerHost_),
      proxyModel_(
          held_.Network,
          [this](const ProxySettingsTexts& texts) {
              ApplyProxySettings(transfer_.Settings(), texts, store_);
              store_.Flush();
          },
          [this](bool open) { mainModel_.SetProxyDialogOpen(open); }),
      mainWindow_(mainModel_),
      variableWindow_(mainModel_.Variables()),
      managerWindow_(managerModel_),
      tray_([this](TrayClick click) { OnTrayClick(click); }),
      sessionEnd_([this] { ExitTessarondel(); }) {
    engine_.ShowMessageBox = [this](const std::u16string& text, const std::u16string& title) {
        box_.Show(text, title, MessageButtons::Ok, MessageIcon::Information);
    };
    proxyModel_.AttachKeepHistory(held_.KeepHistory, [this](bool keep) { StoreKeepHistory(keep); });
    mainModel_.SetListener([this](MainWindowChange change) { OnMainChange(change); });
    mainModel_.SetRequestHandler([this](MainWindowRequest request) { OnMainRequest(request); });
    mainModel_.Variables().SetListener([this](VariableWindowChange change) { variableWindow_.Apply(change); });
    managerModel_.SetListener([this](FunctionManagerChange change) { managerWindow_.Apply(change); });
}

void DesktopApplication::Start() {
    held_ = LoadSettings(store_);
    tray_.AddTrayIcon();
    mainWindow_.SetTrayAvailable(TrayIcon::Available());
    const TwipScale scale = TwipScale::For(nullptr);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    mainModel_.Load(held_.Window, {static_cast<std::int32_t>(scale.ToTwips(screen.width())),
                                   static_cast<std::int32_t>(scale.ToTwips(screen.height()))});
    if (KeepHistoryOn(held_.KeepHistory)) mainModel_.RestoreHistory(historyFile_.Load());
    // The side windows get their native windows now, hidden, so that they stand
    // in the accessibility tree before they are first shown.
    variableWindow_.winId();
    managerModel_.Load();
    managerWindow_.winId();
    starting_ = false;
    mainWindow_.Apply(MainWindowChange::WindowShown);
}

void DesktopApplication::OnMainChange(MainWindowChange change) {
    switch (change) {
        case MainWindowChange::WindowShown:
            if (!starting_) mainWindow_.Apply(change);
            break;
        case MainWindowChange::Options:
            mainWindow_.Apply(change);
            ShowSideWindows();
            break;
        default: mainWindow_.Apply(change); break;
    }
}

void DesktopApplication::OnMainRequest(MainWindowRequest request) {
    switch (request) {
        case MainWindowRequest::OptionsDialog: OpenOptions(); break;
        case MainWindowRequest::About: {
            AboutDialog about(configuration_.Maker, opener_, box_, &mainWindow_);
            about.exec();
            break;
        }
        case MainWindowRequest::CheckForUpdate: CheckForUpdate(transfer_, box_, opener_, configuration_.Servers); break;
        case MainWindowRequest::Exit: ExitTessarondel(); break;
        case MainWindowRequest::HelpWindow: mainWindow_.ShowHelpWindow(); break;
    }
}

void DesktopApplication::ShowSideWindows() {
    const auto sync = [](QWidget& window, bool visible) {
        if (window.isVisible() == visible) return;
        window.setVisible(visible);
        if (visible) window.raise();
    };
    sync(variableWindow_, mainModel_.VariableWindowVisible());
    sync(managerWindow_, mainModel_.FunctionManagerVisible());
}

void DesktopApplication::OnTrayClick(TrayClick click) {
    switch (DecideTrayAction(click, mainModel_.ProxyDialogOpen())) {
        case TrayAction::Toggle: mainModel_.ChooseMainMenu(0); break;
        case TrayAction::OpenMainMenu: mainWindow_.PopupMainMenu(); break;
        default: break;
    }
}

// Stored at once, as the dialog's other settings are; turning it off forgets the kept session.
void DesktopApplication::StoreKeepHistory(bool keep) {
    store_.Write(OptionSection, KeepHistoryKey, keep ? u"1" : u"0");
    store_.Flush();
    if (!keep) historyFile_.Remove();
}

void DesktopApplication::OpenOptions() {
    ProxyDialog dialog(proxyModel_, &mainWindow_);
    dialog.exec();
}

// The one way out: cmdExit and the tray menu's Exit, the session manager at
// logout, SIGTERM, SIGHUP and SIGINT all end here. The tray icon goes first,
// then what outlives the run is written, the side windows close and the
// process ends with status 0.
void DesktopApplication::ExitTessarondel() {
    tray_.RemoveTrayIcon();
    mainWindow_.AllowClose();
    // Everything kept across runs is written here, before the windows go.
    SaveSettings(mainModel_.CurrentFormInfo(), held_, transfer_.Settings(), store_);
    store_.Flush();
    if (KeepHistoryOn(held_.KeepHistory)) historyFile_.Save(mainModel_.SaveHistory());
    variableWindow_.hide();
    managerWindow_.hide();
    QCoreApplication::exit(0);
}

}  // namespace tessarondel
