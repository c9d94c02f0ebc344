#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "shell/message_box.h"
#include "shell/desktop_services.h"

namespace tessarondel::testing {

// A message box that expects a script of boxes, answers them, and fails the
// test on any box it was not told about.
class ScriptedMessageBox final : public MessageBox {
public:
    struct Expected {
        std::u16string Text;
        std::u16string Title;
        MessageButtons Buttons;
        MessageIcon Icon;
        MessageAnswer Answer = MessageAnswer::Ok;
    };

    explicit ScriptedMessageBox(std::vector<Expected> script) : script_(script.begin(), script.end()) {}
    ~ScriptedMessageBox() { EXPECT_TRUE(script_.empty()) << "boxes that never came: " << script_.size(); }

    MessageAnswer Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                       MessageIcon icon) override {
        if (script_.empty()) {
            ADD_FAILURE() << "unexpected box";
            return MessageAnswer::Cancel;
        }
        const Expected expected = script_.front();
        script_.pop_front();
        EXPECT_EQ(text, expected.Text);
        EXPECT_EQ(title, expected.Title);
        EXPECT_EQ(buttons, expected.Buttons);
        EXPECT_EQ(icon, expected.Icon);
        return expected.Answer;
    }

private:
    std::deque<Expected> script_;
};

class RecordingOpener final : public ShellOpener {
public:
    void ShellOpen(std::u16string_view target) override { opened.emplace_back(target); }
    std::vector<std::u16string> opened;
};

}  // namespace tessarondel::testing
