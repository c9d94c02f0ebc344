#include "services/version_check.h"

#include <gtest/gtest.h>

#include "services/qt_application.h"
#include "services/scripted_http_server.h"
#include "shell/desktop_fakes.h"

namespace tessarondel {
namespace {

using testing::ExpectedBox;
using testing::ScriptedHttpServer;
using testing::ScriptedMessageBox;

const ExpectedBox LatestNotice{u"This is the lastest version of Tessarondel!", u"Information", MessageButtons::Ok,
                               MessageIcon::Information};
const ExpectedBox UnknownError{u"Can not get the information of the version!", u"Error", MessageButtons::Ok,
                               MessageIcon::Critical};
const ExpectedBox ConnectionError{u"Some errors occurred when Tessarondel connected Internet!", u"Error",
                                  MessageButtons::Ok, MessageIcon::Critical};
const ExpectedBox CallFailed{u"Some errors occurred when Tessarondel connected Internet!", u"Error", MessageButtons::Ok,
                             MessageIcon::Information};

ExpectedBox NewVersion(std::u16string shown, MessageAnswer answer) {
    return {u"The latest version of Tessarondel is [" + shown + u"]\r\nUpgrade to the latest version now?",
            u"Find new version", MessageButtons::YesNoCancel, MessageIcon::Question, answer};
}

MakerServers ServersAt(const QString& base) { return {base.toStdU16String(), u"https://web.example"}; }

TEST(CheckForUpdate, ReportsWhatTheServerSaid) {
    testing::Application();
    const struct {
        const char *status, *body;
        std::vector<ExpectedBox> boxes;
        std::vector<std::u16string> opened;
    } rows[] = {{"200 OK", "1.2.6688 Build 1228", {LatestNotice}, {}},
                {"200 OK",
                 "{2.0 Build 1}",
                 {NewVersion(u"2.0 Build 1", MessageAnswer::Yes)},
                 {u"https://web.example/download.htm"}},
                {"200 OK", "", {UnknownError}, {}},
                {"404 Not Found", "Not here", {NewVersion(u"Not here", MessageAnswer::Cancel)}, {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.body);
        ScriptedHttpServer server(
            [&](const QByteArray&) { return ScriptedHttpServer::Response(row.status, row.body); });
        ScriptedMessageBox boxes(row.boxes);
        testing::FakeShellOpener opener;
        InternetTransfer transfer;
        CheckForUpdate(transfer, boxes, opener, ServersAt(server.BaseUrl()));
        ASSERT_EQ(server.Heads().size(), 1);
        EXPECT_TRUE(server.Heads().front().startsWith("GET /tq/version/ver.lmv HTTP/1.1"));
        EXPECT_EQ(opener.Opened, row.opened);
    }
}

TEST(CheckForUpdate, SilentServerRunsIntoTheTimeOut) {
    testing::Application();
    ScriptedHttpServer silent([](const QByteArray&) { return QByteArray(); });
    ScriptedMessageBox boxes({CallFailed, UnknownError});
    testing::FakeShellOpener opener;
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

// A refusal of the proxy is a connection error; the right credentials get through.
TEST(CheckForUpdate, GoesThroughAProxyWithItsCredentials) {
    testing::Application();
    ScriptedHttpServer proxy(AuthenticatingProxy, true);
    const std::u16string port = QString::number(proxy.Port()).toStdU16String();
    for (const char16_t* password : {u"wrong", u"pw"}) {
        SCOPED_TRACE(ToUtf8(password));
        ScriptedMessageBox boxes(password == std::u16string_view(u"pw") ? std::vector<ExpectedBox>{LatestNotice}
                                                                        : std::vector{ConnectionError, UnknownError});
        testing::FakeShellOpener opener;
        InternetTransfer transfer;
        MemorySettingsStore store;
        ASSERT_TRUE(ApplyProxySettings(transfer.Settings(), u"1", u"127.0.0.1", port, u"me", password, store));
        CheckForUpdate(transfer, boxes, opener, ServersAt(QStringLiteral("http://update.invalid")));
    }
    ASSERT_FALSE(proxy.Heads().isEmpty());
    EXPECT_TRUE(proxy.Heads().back().startsWith("GET http://update.invalid/tq/version/ver.lmv"));
}

}  // namespace
}  // namespace tessarondel
