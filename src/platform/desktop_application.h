#pragma once

#include <filesystem>

#include "customfunctions/function_manager_model.h"
#include "engine/engine_state.h"
#include "platform/function_manager_window.h"
#include "platform/main_window.h"
#include "platform/qt_desktop.h"
#include "platform/session_end.h"
#include "platform/tray_icon.h"
#include "platform/variable_window.h"
#include "services/history_file.h"
#include "services/internet_transfer.h"
#include "services/qt_settings_store.h"
#include "services/settings_table.h"
#include "services/version_check.h"
#include "shell/function_manager_host.h"
#include "shell/main_window_model.h"
#include "shell/proxy_dialog_model.h"

namespace tessarondel {

struct DesktopConfiguration {
    std::filesystem::path ProgramDirectory;
    std::filesystem::path FunctionFolder;
    MakerAddresses Maker;
    MakerServers Servers;
};

// The running program: one engine, the models over it, their windows, the
// tray icon, the held settings and the transfer object, wired together.
class DesktopApplication {
public:
    DesktopApplication(QtSettingsStore& store, DesktopConfiguration configuration);

    // Reads the settings, loads the main window, the variable window and the
    // function manager in this order, all hidden, then shows the main window.
    void Start();
    // Shows, raises and activates the main window, as the tray's Show does.
    void ShowMainWindow() { mainModel_.ShowWindow(); }

private:
    void OnMainChange(MainWindowChange change);
    void OnMainRequest(MainWindowRequest request);
    void OnTrayClick(TrayClick click);
    void ShowSideWindows();
    void OpenOptions();
    void ExitTessarondel();
    void StoreKeepHistory(bool keep);

    QtSettingsStore& store_;
    DesktopConfiguration configuration_;
    EngineState engine_;
    QtMessageBox box_;
    QtClipboard clipboard_;
    QtSaveFileDialog saveDialog_;
    QtShellOpener opener_;
    HeldSettings held_;
    HistoryFile historyFile_;
    InternetTransfer transfer_;
    MainWindowModel mainModel_;
    FolderDocumentStore documents_;
    ShellFunctionManagerHost managerHost_;
    FunctionManagerModel managerModel_;
    ProxyDialogModel proxyModel_;
    MainWindow mainWindow_;
    VariableWindow variableWindow_;
    FunctionManagerWindow managerWindow_;
    TrayIcon tray_;
    SessionEnd sessionEnd_;
    bool starting_ = true;
};

}  // namespace tessarondel
