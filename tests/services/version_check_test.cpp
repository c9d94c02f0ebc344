#include <gtest/gtest.h>

#include "services/fake_dialogs.h"
#include "services/qt_application.h"
#include "services/scripted_http_server.h"
#include "services/version_check.h"

namespace tessarondel {
namespace {

using testing::ScriptedHttpServer;
using testing::ScriptedMessageBox;

const ScriptedMessageBox::Expected LatestNotice{u"This is the lastest version of Tessarondel!", u"Information",
                                                MessageButtons::Ok, MessageIcon::Information};
const ScriptedMessageBox::Expected UnknownError{u"Can not get the information of the version!", u"Error",
                                                MessageButtons::Ok, MessageIcon::Critical};
const ScriptedMessageBox::Expected ConnectionError{u"Some errors occurred when Tessarondel connected Internet!",
                                                   u"Error", MessageButtons::Ok, MessageIcon::Critical};
const ScriptedMessageBox::Expected CallFailed{u"Some errors occurred when Tessarondel connected Internet!", u"Error",
                                              MessageButtons::Ok, MessageIcon::Information};

ScriptedMessageBox::Expected NewVersion(std::u16string shown, MessageAnswer answer) {
    return {u"The latest version of Tessarondel is [" + shown + u"]\r\nUpgrade to the latest version now?",
            u"Find new version", MessageButtons::YesNoCancel, MessageIcon::Question, answer};
}

MakerServers ServersAt(const QString& base) { return {base.toStdU16String(), u"https://web.example"}; }

struct ServerRow {
    const char* name;
    QByteArray answer;
    std::vector<ScriptedMessageBox::Expected> boxes;
    std::vector<std::u16string> opened;
};

class CheckAgainstServer : public ::testing::TestWithParam<ServerRow> {
protected:
    void SetUp() override { testing::Application(); }
};

TEST_P(CheckAgainstServer, ReportsWhatTheServerSaid) {
    const auto& row = GetParam();
    ScriptedHttpServer server([&](const QByteArray&) { return row.answer; });
    ScriptedMessageBox boxes(row.boxes);
    testing::RecordingOpener opener;
    InternetTransfer transfer;
    CheckForUpdate(transfer, boxes, opener, ServersAt(server.BaseUrl()));
    ASSERT_EQ(server.Heads().size(), 1);
    EXPECT_TRUE(server.Heads().front().startsWith("GET /tq/version/ver.lmv HTTP/1.1"));
    EXPECT_EQ(opener.opened, row.opened);
}

INSTANTIATE_TEST_SUITE_P(
    Version, CheckAgainstServer,
    ::testing::Values(
        ServerRow{"SameVersion", ScriptedHttpServer::Response("200 OK", "1.2.6688 Build 1228"), {LatestNotice}, {}},
        ServerRow{"Braces", ScriptedHttpServer::Response("200 OK", " {1.2.6688 Build 1228} "), {LatestNotice}, {}},
        ServerRow{"CrLfAtEndCountsAsNew",
                  ScriptedHttpServer::Response("200 OK", "1.2.6688 Build 1228\r\n"),
                  {NewVersion(u"1.2.6688 Build 1228\r\n", MessageAnswer::No)},
                  {}},
        ServerRow{"NewerAcceptedOpensDownloadPage",
                  ScriptedHttpServer::Response("200 OK", "{2.0 Build 1}"),
                  {NewVersion(u"2.0 Build 1", MessageAnswer::Yes)},
                  {u"https://web.example/download.htm"}},
        ServerRow{"EmptyBody", ScriptedHttpServer::Response("200 OK", ""), {UnknownError}, {}},
        ServerRow{"NotFoundPageIsOffered",
                  ScriptedHttpServer::Response("404 Not Found", "Not here"),
                  {NewVersion(u"Not here", MessageAnswer::Cancel)},
                  {}},
        ServerRow{"NotFoundWithoutBody", ScriptedHttpServer::Response("404 Not Found", ""), {UnknownError}, {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(CheckForUpdate, RefusedConnectionReportsBothErrors) {
    testing::Application();
    QString base;
    {
        ScriptedHttpServer closed([](const QByteArray&) { return QByteArray(); });
        base = closed.BaseUrl();
    }
    ScriptedMessageBox boxes({ConnectionError, UnknownError});
    testing::RecordingOpener opener;
    InternetTransfer transfer;
    CheckForUpdate(transfer, boxes, opener, ServersAt(base));
    EXPECT_TRUE(opener.opened.empty());
}

TEST(CheckForUpdate, SilentServerRunsIntoTheTimeOut) {
    testing::Application();
    ScriptedHttpServer silent([](const QByteArray&) { return QByteArray(); });
    ScriptedMessageBox boxes({CallFailed, UnknownError});
    testing::RecordingOpener opener;
    InternetTransfer transfer;
    transfer.Settings().TransferTimeout = std::chrono::milliseconds(300);
    CheckForUpdate(transfer, boxes, opener, ServersAt(silent.BaseUrl()));
    EXPECT_EQ(silent.Heads().size(), 1);
}

// A proxy that answers 407 until the request carries user "me" with password "pw".
QByteArray AuthenticatingProxy(const QByteArray& head) {
    if (!head.contains("Proxy-Authorization: Basic " + QByteArray("me:pw").toBase64())) {
        return ScriptedHttpServer::Response("407 Proxy Authentication Required", "",
                                            "Proxy-Authenticate: Basic realm=\"test\"\r\n");
    }
    return ScriptedHttpServer::Response("200 OK", "{1.2.6688 Build 1228}");
}

TEST(CheckForUpdate, GoesThroughAProxyWithItsCredentials) {
    testing::Application();
    ScriptedHttpServer proxy(AuthenticatingProxy, true);
    ScriptedMessageBox boxes({LatestNotice});
    testing::RecordingOpener opener;
    InternetTransfer transfer;
    MemorySettingsStore store;
    ASSERT_TRUE(ApplyProxySettings(transfer.Settings(), u"1", u"127.0.0.1", QString::number(proxy.Port()).toStdU16String(),
                                   u"me", u"pw", store));
    CheckForUpdate(transfer, boxes, opener, ServersAt(QStringLiteral("http://update.invalid")));
    ASSERT_FALSE(proxy.Heads().isEmpty());
    EXPECT_TRUE(proxy.Heads().back().startsWith("GET http://update.invalid/tq/version/ver.lmv"));
}

TEST(CheckForUpdate, ProxyRefusingWrongCredentialsIsAConnectionError) {
    testing::Application();
    ScriptedHttpServer proxy(AuthenticatingProxy, true);
    ScriptedMessageBox boxes({ConnectionError, UnknownError});
    testing::RecordingOpener opener;
    InternetTransfer transfer;
    MemorySettingsStore store;
    ASSERT_TRUE(ApplyProxySettings(transfer.Settings(), u"1", u"127.0.0.1", QString::number(proxy.Port()).toStdU16String(),
                                   u"me", u"wrong", store));
    CheckForUpdate(transfer, boxes, opener, ServersAt(QStringLiteral("http://update.invalid")));
}

TEST(CheckForUpdate, DefaultConnectionIgnoresAStoredProxyUntilApplied) {
    testing::Application();
    ScriptedHttpServer server([](const QByteArray&) { return ScriptedHttpServer::Response("200 OK", "1.2.6688 Build 1228"); });
    ScriptedMessageBox boxes({LatestNotice});
    testing::RecordingOpener opener;
    InternetTransfer fresh;  // a new run: nothing applied, whatever the store holds
    CheckForUpdate(fresh, boxes, opener, ServersAt(server.BaseUrl()));
    EXPECT_TRUE(server.Heads().front().startsWith("GET /tq/"));
}

}  // namespace
}  // namespace tessarondel
