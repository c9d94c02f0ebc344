#pragma once

#include "customfunctions/function_manager_model.h"
#include "shell/main_window_model.h"
#include "shell/message_box.h"

namespace tessarondel {

// Connects the Custom Function Manager to the main window and the boxes.
class ShellFunctionManagerHost final : public FunctionManagerHost {
public:
    ShellFunctionManagerHost(MainWindowModel& main, MessageBox& box) : main_(main), box_(box) {}

    void InsertFunction(std::u16string_view text) override { main_.InsertFunction(text); }
    void SetQuickReference(std::u16string text) override { main_.SetQuickReference(std::move(text)); }
    void SetFunctionManagerOption(bool checked) override { main_.SetOption(OptionFunctionManager, checked); }
    void ShowNotice(std::u16string_view text, std::u16string_view title) override {
        tessarondel::ShowNotice(box_, text, title);
    }
    bool Confirm(std::u16string_view text, std::u16string_view title) override {
        return tessarondel::Confirm(box_, text, title);
    }

private:
    MainWindowModel& main_;
    MessageBox& box_;
};

}  // namespace tessarondel
