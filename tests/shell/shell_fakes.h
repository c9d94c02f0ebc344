#pragma once

#include <algorithm>

#include "engine/engine.h"
#include "shell/desktop_fakes.h"
#include "shell/main_window_model.h"

namespace tessarondel::testing {

inline std::string U8(std::u16string_view text) { return ToUtf8(text); }

// One main window on a fresh engine, loaded as at a first start, with the
// changes and requests it announced recorded.
class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() {
        main.SetListener([this](MainWindowChange change) { changes.push_back(change); });
        main.SetRequestHandler([this](MainWindowRequest request) { requests.push_back(request); });
        main.Load(FormInfoTexts{}, ScreenSize{19200, 14400});
        changes.clear();
    }

    // Types the text as the user would and presses Enter.
    void Enter(std::u16string_view text) {
        main.EditInput(std::u16string(text), text.size(), 0);
        main.PressEnter();
    }
    std::string Display() const { return U8(main.Display().Text()); }
    std::string InputText() const { return U8(main.Input().Text()); }
    std::string QuickReference() const { return U8(main.QuickReference()); }
    const ExpressionRow& LastRow() const { return main.Expressions().Rows().back(); }
    std::string LastResultItem() const { return U8(main.Results().Items().back().Caption); }
    bool Announced(MainWindowChange change) const {
        return std::find(changes.begin(), changes.end(), change) != changes.end();
    }

    EngineState engine;
    ScriptedMessageBox box;
    FakeClipboard clipboard;
    FakeSaveDialog saveDialog;
    FakeShellOpener opener;
    MainWindowModel main{engine, ShellPlatform{box, clipboard, saveDialog, opener},
                         ShellEnvironment{TESSARONDEL_TEST_DATA "/shell/program",
                                          {u"support@example.org", u"mail@example.org", u"http://www.example.org"}}};
    std::vector<MainWindowChange> changes;
    std::vector<MainWindowRequest> requests;
};

}  // namespace tessarondel::testing
