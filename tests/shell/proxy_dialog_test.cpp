// The options dialog's held texts.
#include <gtest/gtest.h>

#include "shell/proxy_dialog_model.h"

namespace tessarondel {
namespace {

class ProxyDialog : public ::testing::Test {
protected:
    ProxyDialogModel Dialog() {
        return ProxyDialogModel(
            held, [this](const ProxySettingsTexts& texts) { applied.push_back(texts); },
            [this](bool open) { dialogOpen = open; });
    }

    ProxySettingsTexts held{u"0", u"proxy.example.org", u"8080", u"ann", u"secret"};
    std::vector<ProxySettingsTexts> applied;
    bool dialogOpen = false;
};

TEST_F(ProxyDialog, OpensFromTheHeldTextsAndCancelRestoresTheToggledState) {
    ProxyDialogModel dialog = Dialog();
    dialog.Open();
    EXPECT_TRUE(dialogOpen);
    EXPECT_FALSE(dialog.UseProxyChecked());
    EXPECT_FALSE(dialog.FrameVisible());
    EXPECT_EQ(dialog.FieldText(ProxyField::Port), u"8080");
    dialog.ClickUseProxy(true);
    EXPECT_EQ(held.State, u"1");
    EXPECT_TRUE(dialog.FrameVisible());
    dialog.ClickCancel();
    EXPECT_EQ(held.State, u"0");
    EXPECT_TRUE(applied.empty());
    EXPECT_FALSE(dialogOpen);
}

TEST_F(ProxyDialog, OkStoresTheTrimmedBoxesAndApplies) {
    ProxyDialogModel dialog = Dialog();
    dialog.Open();
    dialog.ClickUseProxy(true);
    dialog.SetFieldText(ProxyField::Proxy, u"  other.example.org ");
    dialog.SetFieldText(ProxyField::Password, u" pass word ");
    dialog.ClickOk();
    const ProxySettingsTexts expected{u"1", u"other.example.org", u"8080", u"ann", u"pass word"};
    EXPECT_EQ(held, expected);
    ASSERT_EQ(applied.size(), 1u);
    EXPECT_EQ(applied[0], expected);
}

TEST_F(ProxyDialog, DefaultMeansNoProxyAndKeepsTheBoxes) {
    held.State = std::u16string(u"1");
    ProxyDialogModel dialog = Dialog();
    dialog.Open();
    EXPECT_TRUE(dialog.UseProxyChecked());
    dialog.ClickDefault();
    ASSERT_EQ(applied.size(), 1u);
    EXPECT_EQ(applied[0], (ProxySettingsTexts{u"0", u"proxy.example.org", u"8080", u"ann", u"secret"}));
}

TEST_F(ProxyDialog, FrameCloseKeepsAChangedStateUnstored) {
    ProxyDialogModel dialog = Dialog();
    dialog.Open();
    dialog.ClickUseProxy(true);
    dialog.Close();
    EXPECT_EQ(held.State, u"1");
    EXPECT_TRUE(applied.empty());
}

// A changed box is stored by OK and by Default, which leaves it as it is; Cancel forgets it.
TEST_F(ProxyDialog, KeepHistoryIsStoredWhenChangedAndConfirmed) {
    std::u16string keep = u"0";
    std::vector<bool> stored;
    ProxyDialogModel dialog = Dialog();
    dialog.AttachKeepHistory(keep, [&stored](bool on) { stored.push_back(on); });
    for (const auto& [click, confirm] : std::initializer_list<std::pair<bool, void (ProxyDialogModel::*)()>>{
             {true, &ProxyDialogModel::ClickCancel},
             {true, &ProxyDialogModel::ClickOk},
             {true, &ProxyDialogModel::ClickDefault},
             {false, &ProxyDialogModel::ClickDefault}}) {
        dialog.Open();
        dialog.ClickKeepHistory(click);
        (dialog.*confirm)();
    }
    EXPECT_EQ(stored, (std::vector<bool>{true, false}));
    EXPECT_EQ(keep, u"0");
}

}  // namespace
}  // namespace tessarondel
