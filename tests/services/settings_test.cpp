#include <gtest/gtest.h>

#include "engine/text_codec.h"
#include "services/proxy_settings.h"
#include "services/settings_table.h"

namespace tessarondel {
namespace {

TEST(LoadSettings, AnEmptyStoreGivesTheFirstRunDefaults) {
    const HeldSettings held = LoadSettings(MemorySettingsStore{});
    EXPECT_EQ(held.Network, (ProxySettingsTexts{u"0", u"", u"80", u"", u""}));
    EXPECT_EQ(held.Window, (FormInfoTexts{u"None", u"None", u"1", u"1", u"1", u"0"}));
    EXPECT_EQ(held.KeepHistory, u"0");
}

TEST(LoadSettings, TrimsWindowStateButNotNetworkSettings) {
    MemorySettingsStore store;
    store.Write(u"Option", u"Proxy", u" proxy.local ");
    store.Write(u"Option", u"Password", u" secret\t");
    store.Write(u"FormInfo", u"x", u"  120 ");
    store.Write(u"FormInfo", u"SOT", u"\t1 ");
    const HeldSettings held = LoadSettings(store);
    EXPECT_EQ(held.Network.Proxy, u" proxy.local ");
    EXPECT_EQ(held.Network.Password, u" secret\t");
    EXPECT_EQ(held.Window.X, u"120");
    EXPECT_EQ(held.Window.SOT, u"\t1") << "only blanks are trimmed";
}

// The port is rounded half to even into 16 signed bits; out of range nothing is stored.
TEST(ApplyProxySettings, PortIsSixteenBitHalfEvenOrNothingIsStored) {
    const struct {
        const char16_t* port;
        bool applied;
        std::int16_t remotePort;
    } rows[] = {{u"2.5", true, 2},       {u"3.5", true, 4},         {u"32767", true, 32767},
                {u"32768", false, 8080}, {u"32767.5", false, 8080}, {u"-32768.5", true, -32768},
                {u"abc", true, 0},       {u"81x", true, 81}};
    for (const auto& row : rows) {
        SCOPED_TRACE(ToUtf8(row.port));
        MemorySettingsStore store;
        store.Write(u"Option", u"Remoteport", u"8080");
        TransferSettings transfer;
        transfer.RemotePort = 8080;
        EXPECT_EQ(ApplyProxySettings(transfer, u"1", u"proxy", row.port, u"user", u"pw", store), row.applied);
        EXPECT_EQ(transfer.RemotePort, row.remotePort);
        EXPECT_EQ(store.Read(u"Option", u"Remoteport", u"?"), row.applied ? row.port : u"8080");
        EXPECT_EQ(store.Contains(u"Option", u"Proxy"), row.applied);
    }
}

TEST(ApplyProxySettings, StoresFiveKeysInOrderAndPicksAccessByTrimmedState) {
    MemorySettingsStore store;
    TransferSettings transfer;
    ASSERT_TRUE(ApplyProxySettings(transfer, u" 0 ", u"p", u"80", u"u", u"w", store));
    EXPECT_EQ(transfer.Access, AccessType::Default);
    EXPECT_EQ(store.WriteLog(),
              (std::vector<std::u16string>{u"Option/State= 0 ", u"Option/Proxy=p", u"Option/Remoteport=80",
                                           u"Option/Username=u", u"Option/Password=w"}));
    ASSERT_TRUE(ApplyProxySettings(transfer, u"yes", u"p", u"80", u"u", u"w", store));
    EXPECT_EQ(transfer.Access, AccessType::NamedProxy);
}

TEST(ApplyProxySettings, FailedPortLeavesEarlierTransferStepsDone) {
    MemorySettingsStore store;
    TransferSettings transfer;
    EXPECT_FALSE(ApplyProxySettings(transfer, u"1", u"proxy.local", u"70000", u"me", u"pw", store));
    EXPECT_EQ(transfer.Access, AccessType::NamedProxy);
    EXPECT_EQ(transfer.Proxy, u"proxy.local");
    EXPECT_EQ(transfer.RemotePort, 80);
    EXPECT_TRUE(store.WriteLog().empty());
}

TEST(SaveSettings, WritesWindowStateThenNetworkSettings) {
    MemorySettingsStore store;
    HeldSettings held = DefaultSettings();
    held.Network.State = std::u16string(u"1");  // GCC 12 misreads the char array assignment (-Wrestrict)
    TransferSettings transfer;
    SaveSettings({u"1500", u"-30", u"0", u"1", u"0", u"1"}, held, transfer, store);
    EXPECT_EQ(store.WriteLog(),
              (std::vector<std::u16string>{u"FormInfo/x=1500", u"FormInfo/y=-30", u"FormInfo/EL=0", u"FormInfo/IP=1",
                                           u"FormInfo/QR=0", u"FormInfo/SOT=1", u"Option/State=1", u"Option/Proxy=",
                                           u"Option/Remoteport=80", u"Option/Username=", u"Option/Password="}));
    EXPECT_EQ(held.Window.X, u"1500");
    EXPECT_EQ(transfer.Access, AccessType::NamedProxy);
}

}  // namespace
}  // namespace tessarondel
