#include "services/instance_channel.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <cstring>

#include "services/qt_application.h"

namespace tessarondel {
namespace {

// What a crashed run leaves: a bound socket file that nobody listens on.
void LeaveStaleSocket(const QString& path) {
    sockaddr_un address = {AF_UNIX, {}};
    std::strncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path - 1);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(descriptor);
}

struct Message {
    const char* name;
    bool staleSocket;
    QByteArray bytes;
    int shows;
};

class ChannelMessages : public ::testing::TestWithParam<Message> {};

// Only the exact request shows the window, also on a socket taken over from a crashed run.
TEST_P(ChannelMessages, ShowOnlyForTheExactRequest) {
    testing::Application();
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("channel"));
    if (GetParam().staleSocket) LeaveStaleSocket(path);
    InstanceChannel channel(path);
    int shows = 0;
    ASSERT_TRUE(channel.Listen([&shows] { ++shows; }));
    {
        QLocalSocket socket;
        socket.connectToServer(path);
        ASSERT_TRUE(socket.waitForConnected(2000));
        socket.write(GetParam().bytes);
        socket.waitForBytesWritten(2000);
    }
    const QDeadlineTimer deadline(GetParam().shows > 0 ? 5000 : 300);  // an ignored request gets a short while
    while (shows < std::max(GetParam().shows, 1) && !deadline.hasExpired()) QCoreApplication::processEvents();
    EXPECT_EQ(shows, GetParam().shows);
}

INSTANTIATE_TEST_SUITE_P(Rows, ChannelMessages,
                         ::testing::Values(Message{"Request", false, "show-main-window\n", 1},
                                           Message{"RequestAfterACrashedRun", true, "show-main-window\n", 1},
                                           Message{"OtherText", false, "hello\n", 0},
                                           Message{"RequestWithMoreBehind", false, "show-main-window\nshow", 0},
                                           Message{"RequestCutShort", false, "show-main-window", 0}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarondel
