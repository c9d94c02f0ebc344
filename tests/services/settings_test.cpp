#include <gtest/gtest.h>

#include "services/proxy_settings.h"
#include "services/settings_table.h"

namespace tessarondel {
namespace {

struct DefaultRow {
    const char* name;
    std::u16string HeldSettings::*held;
    std::u16string expected;
};

class FirstRunDefaults : public ::testing::TestWithParam<DefaultRow> {};

TEST_P(FirstRunDefaults, EmptyStoreGivesTheDefault) {
    const MemorySettingsStore empty;
    EXPECT_EQ(LoadSettings(empty).*GetParam().held, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, FirstRunDefaults,
    ::testing::Values(DefaultRow{"State", &HeldSettings::ProxyState, u"0"},
                      DefaultRow{"Proxy", &HeldSettings::ProxyName, u""},
                      DefaultRow{"Remoteport", &HeldSettings::ProxyPort, u"80"},
                      DefaultRow{"Username", &HeldSettings::ProxyUserName, u""},
                      DefaultRow{"Password", &HeldSettings::ProxyPassword, u""},
                      DefaultRow{"x", &HeldSettings::X, u"None"}, DefaultRow{"y", &HeldSettings::Y, u"None"},
                      DefaultRow{"EL", &HeldSettings::EL, u"1"}, DefaultRow{"IP", &HeldSettings::IP, u"1"},
                      DefaultRow{"QR", &HeldSettings::QR, u"1"}, DefaultRow{"SOT", &HeldSettings::SOT, u"0"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LoadSettings, TrimsWindowStateButNotNetworkSettings) {
    MemorySettingsStore store;
    store.Write(u"Option", u"Proxy", u" proxy.local ");
    store.Write(u"Option", u"Password", u" secret\t");
    store.Write(u"FormInfo", u"x", u"  120 ");
    store.Write(u"FormInfo", u"SOT", u"\t1 ");
    const HeldSettings held = LoadSettings(store);
    EXPECT_EQ(held.ProxyName, u" proxy.local ");
    EXPECT_EQ(held.ProxyPassword, u" secret\t");
    EXPECT_EQ(held.X, u"120");
    EXPECT_EQ(held.SOT, u"\t1") << "only blanks are trimmed";
}

struct PortRow {
    const char* name;
    std::u16string port;
    bool applied;
    std::int16_t remotePort;
};

class ProxyPort : public ::testing::TestWithParam<PortRow> {};

TEST_P(ProxyPort, SixteenBitHalfEvenOrNothingStored) {
    const auto& row = GetParam();
    MemorySettingsStore store;
    store.Write(u"Option", u"Remoteport", u"8080");
    TransferSettings transfer;
    transfer.RemotePort = 8080;
    EXPECT_EQ(ApplyProxySettings(transfer, u"1", u"proxy", row.port, u"user", u"pw", store), row.applied);
    EXPECT_EQ(transfer.RemotePort, row.remotePort);
    EXPECT_EQ(store.Read(u"Option", u"Remoteport", u"?"), row.applied ? row.port : u"8080");
    EXPECT_EQ(store.Contains(u"Option", u"Proxy"), row.applied);
}

INSTANTIATE_TEST_SUITE_P(Settings, ProxyPort,
                         ::testing::Values(PortRow{"Plain", u"3128", true, 3128},
                                           PortRow{"TieGoesToEvenDown", u"2.5", true, 2},
                                           PortRow{"TieGoesToEvenUp", u"3.5", true, 4},
                                           PortRow{"HighestSixteenBit", u"32767", true, 32767},
                                           PortRow{"AboveSixteenBit", u"32768", false, 8080},
                                           PortRow{"TieRoundsOutOfRange", u"32767.5", false, 8080},
                                           PortRow{"FarAbove", u"70000", false, 8080},
                                           PortRow{"LowestTieStaysIn", u"-32768.5", true, -32768},
                                           PortRow{"NoNumberReadsAsZero", u"abc", true, 0},
                                           PortRow{"LeadingDigitsCount", u"81x", true, 81}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(ApplyProxySettings, StoresFiveKeysInOrderAndPicksAccessByTrimmedState) {
    MemorySettingsStore store;
    TransferSettings transfer;
    ASSERT_TRUE(ApplyProxySettings(transfer, u" 0 ", u"p", u"80", u"u", u"w", store));
    EXPECT_EQ(transfer.Access, AccessType::Default);
    EXPECT_EQ(store.WriteLog(), (std::vector<std::u16string>{u"Option/State= 0 ", u"Option/Proxy=p",
                                                             u"Option/Remoteport=80", u"Option/Username=u",
                                                             u"Option/Password=w"}));
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
    held.ProxyState = std::u16string(u"1");  // GCC 12 misreads the char array assignment (-Wrestrict)
    TransferSettings transfer;
    SaveSettings({1500, -30, false, true, false, true}, held, transfer, store);
    EXPECT_EQ(store.WriteLog(),
              (std::vector<std::u16string>{u"FormInfo/x=1500", u"FormInfo/y=-30", u"FormInfo/EL=0", u"FormInfo/IP=1",
                                           u"FormInfo/QR=0", u"FormInfo/SOT=1", u"Option/State=1", u"Option/Proxy=",
                                           u"Option/Remoteport=80", u"Option/Username=", u"Option/Password="}));
    EXPECT_EQ(held.X, u"1500");
    EXPECT_EQ(transfer.Access, AccessType::NamedProxy);
}

TEST(SaveSettings, RoundTripsThroughLoad) {
    MemorySettingsStore store;
    HeldSettings held = DefaultSettings();
    TransferSettings transfer;
    SaveSettings({0, 4567.5, true, false, true, false}, held, transfer, store);
    const HeldSettings loaded = LoadSettings(store);
    EXPECT_EQ(loaded.X, u"0") << "a stored 0 is a position, not None";
    EXPECT_EQ(loaded.Y, u"4567.5");
    EXPECT_EQ(loaded.IP, u"0");
}

}  // namespace
}  // namespace tessarondel
