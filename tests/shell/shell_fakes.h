#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/text_codec.h"
#include "shell/desktop_services.h"
#include "shell/main_window_model.h"
#include "shell/message_box.h"

namespace tessarondel::testing {

struct ExpectedBox {
    std::u16string Text;
    std::u16string Title;
    MessageButtons Buttons;
    MessageIcon Icon;
    MessageAnswer Answer;
};

// Answers the boxes of a script in order; a box that the script doesn't
// expect, or an expected one that never came, fails the test.
class ScriptedMessageBox final : public MessageBox {
public:
    ~ScriptedMessageBox() {
        for (const ExpectedBox& box : script_) ADD_FAILURE() << "box never shown: " << ToUtf8(box.Text);
    }

    void Expect(ExpectedBox box) { script_.push_back(std::move(box)); }
    void ExpectQuestion(std::u16string text, std::u16string title, MessageAnswer answer) {
        Expect({std::move(text), std::move(title), MessageButtons::YesNoCancel, MessageIcon::Question, answer});
    }
    void ExpectNotice(std::u16string text, std::u16string title) {
        Expect({std::move(text), std::move(title), MessageButtons::Ok, MessageIcon::Information, MessageAnswer::Ok});
    }
    bool AllShown() const { return script_.empty(); }

    MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                       MessageIcon icon) override {
        if (script_.empty()) {
            ADD_FAILURE() << "unexpected box: " << ToUtf8(text) << " / " << ToUtf8(title);
            return MessageAnswer::Cancel;
        }
        const ExpectedBox expected = script_.front();
        script_.pop_front();
        EXPECT_EQ(ToUtf8(text), ToUtf8(expected.Text));
        EXPECT_EQ(ToUtf8(title), ToUtf8(expected.Title));
        EXPECT_EQ(buttons, expected.Buttons);
        EXPECT_EQ(icon, expected.Icon);
        return expected.Answer;
    }

private:
    std::deque<ExpectedBox> script_;
};

class FakeClipboard final : public Clipboard {
public:
    std::u16string Text;
    std::u16string GetText() override { return Text; }
    void SetText(std::u16string_view text) override { Text = text; }
};

class FakeSaveDialog final : public SaveFileDialog {
public:
    std::u16string Answer;
    std::vector<std::u16string> Filters;
    std::u16string AskSaveFileName(std::u16string_view filter) override {
        Filters.emplace_back(filter);
        return Answer;
    }
};

class FakeShellOpener final : public ShellOpener {
public:
    std::vector<std::u16string> Opened;
    void ShellOpen(std::u16string_view target) override { Opened.emplace_back(target); }
};

inline std::string U8(std::u16string_view text) { return ToUtf8(text); }

// One main window on a fresh engine, loaded as at a first start, with the
// changes it announced recorded.
class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() {
        main.SetListener([this](MainWindowChange change) { changes.push_back(change); });
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
};

}  // namespace tessarondel::testing
