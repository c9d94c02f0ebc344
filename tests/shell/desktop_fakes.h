#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "engine/text_codec.h"
#include "shell/desktop_services.h"
#include "shell/message_box.h"

namespace tessarondel::testing {

struct ExpectedBox {
    std::u16string Text;
    std::u16string Title;
    MessageButtons Buttons;
    MessageIcon Icon;
    MessageAnswer Answer = MessageAnswer::Ok;
};

// Answers the boxes of a script in order; a box that the script doesn't
// expect, or an expected one that never came, fails the test.
class ScriptedMessageBox final : public MessageBox {
public:
    ScriptedMessageBox() = default;
    explicit ScriptedMessageBox(std::vector<ExpectedBox> script) : script_(script.begin(), script.end()) {}
    ~ScriptedMessageBox() {
        for (const ExpectedBox& box : script_) ADD_FAILURE() << "box never shown: " << ToUtf8(box.Text);
    }

    void ExpectQuestion(std::u16string text, std::u16string title, MessageAnswer answer) {
        script_.push_back(
            {std::move(text), std::move(title), MessageButtons::YesNoCancel, MessageIcon::Question, answer});
    }
    void ExpectNotice(std::u16string text, std::u16string title, MessageIcon icon = MessageIcon::Information) {
        script_.push_back({std::move(text), std::move(title), MessageButtons::Ok, icon});
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

// Records what it was asked to open; the desktop takes it unless Refuses.
class FakeShellOpener final : public ShellOpener {
public:
    std::vector<std::u16string> Opened;
    bool Refuses = false;
    bool ShellOpen(std::u16string_view target) override {
        Opened.emplace_back(target);
        return !Refuses;
    }
};

}  // namespace tessarondel::testing
