#pragma once

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWidget>
#include <string>

#include "customfunctions/memory_document_store.h"
#include "platform/function_manager_window.h"
#include "platform/guarded_application.h"
#include "platform/main_window.h"
#include "shell/desktop_fakes.h"
#include "shell/function_manager_host.h"
#include "shell/main_window_model.h"

namespace tessarondel::testing {

// The widget application of the tests: offscreen, with settings and data
// paths of its own, so nothing of the user's is read or written.
inline GuardedApplication& WidgetApplication() {
    static GuardedApplication* application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QStandardPaths::setTestModeEnabled(true);
        static int argc = 1;
        static char name[] = "platform_tests";
        static char* argv[] = {name, nullptr};
        return new GuardedApplication(argc, argv);
    }();
    return *application;
}

// Declared first in a harness, so the application exists before any widget.
struct WidgetApplicationGuard {
    WidgetApplicationGuard() { WidgetApplication(); }
};

// The main window over its model on fakes, loaded as on a first run.
template <typename Box = ScriptedMessageBox>
struct BasicMainWindowHarness {
    BasicMainWindowHarness() {
        model.SetListener([this](MainWindowChange change) { window.Apply(change); });
        model.SetRequestHandler([this](MainWindowRequest request) {
            if (request == MainWindowRequest::HelpWindow) window.ShowHelpWindow();
        });
        model.Load(FormInfoTexts{}, {19200, 14400});
    }

    WidgetApplicationGuard application;
    EngineState engine;
    Box box;  // by default, any box a test doesn't expect fails it
    FakeClipboard clipboard;
    FakeSaveDialog saveDialog;
    FakeShellOpener opener;
    QTemporaryDir programDirectory;
    MainWindowModel model{
        engine,
        {box, clipboard, saveDialog, opener},
        {programDirectory.path().toStdU16String(), {u"help@x.invalid", u"ideas@x.invalid", u"https://x.invalid"}}};
    MainWindow window{model};
};
using MainWindowHarness = BasicMainWindowHarness<>;

// The main window with the Custom Function Manager over one document, "Hyp".
struct ManagerHarness : MainWindowHarness {
    ManagerHarness() {
        documents.loaded.documents.push_back({u"Hyp", u"a,b", u"sqrt(a^2+b^2)", u"Hypotenuse"});
        manager.SetListener([this](FunctionManagerChange change) { window.Apply(change); });
        manager.Load();
    }
    MemoryDocumentStore documents;
    ShellFunctionManagerHost host{model, box};
    FunctionManagerModel manager{engine, documents, host};
    FunctionManagerWindow window{manager};
};

// The first child whose accessible name is `name`.
template <typename Widget = QWidget>
Widget* FindByAccessibleName(QWidget& root, const QString& name) {
    for (Widget* child : root.findChildren<Widget*>()) {
        if (child->accessibleName() == name) return child;
    }
    return nullptr;
}

}  // namespace tessarondel::testing
