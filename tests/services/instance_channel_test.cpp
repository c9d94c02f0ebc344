#include "services/instance_channel.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>

#include "services/qt_application.h"

namespace tessarondel {
namespace {

struct Listener {
    Listener() { testing::Application(); }
    bool Listen() {
        return channel.Listen([this] { ++shows; });
    }
    // Runs the event loop until the expected requests came in, or a short while when none should.
    int ShowsSeen(int expected) {
        const QDeadlineTimer deadline(expected > 0 ? 5000 : 300);
        while (shows < std::max(expected, 1) && !deadline.hasExpired()) QCoreApplication::processEvents();
        return shows;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("channel"));
    InstanceChannel channel{path};
    int shows = 0;
};

// What a crashed run leaves: a bound socket file that nobody listens on.
void LeaveStaleSocket(const QString& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    std::copy_n(name.constData(), std::min<qsizetype>(name.size(), sizeof address.sun_path - 1), address.sun_path);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(descriptor);
}

struct Message {
    const char* name;
    QByteArray bytes;
    int shows;
};

class ChannelMessages : public ::testing::TestWithParam<Message> {};

// Only the exact request shows the window; anything else is ignored.
TEST_P(ChannelMessages, ShowOnlyForTheExactRequest) {
    Listener listener;
    ASSERT_TRUE(listener.Listen());
    {
        QLocalSocket socket;
        socket.connectToServer(listener.path);
        ASSERT_TRUE(socket.waitForConnected(2000));
        socket.write(GetParam().bytes);
        socket.waitForBytesWritten(2000);
    }
    EXPECT_EQ(listener.ShowsSeen(GetParam().shows), GetParam().shows);
}

INSTANTIATE_TEST_SUITE_P(Rows, ChannelMessages,
                         ::testing::Values(Message{"Request", "show-main-window\n", 1},
                                           Message{"OtherText", "hello\n", 0},
                                           Message{"RequestWithMoreBehind", "show-main-window\nshow", 0},
                                           Message{"RequestCutShort", "show-main-window", 0}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(InstanceChannel, TakesOverAStaleSocketAndIsReached) {
    Listener listener;
    LeaveStaleSocket(listener.path);
    ASSERT_TRUE(QFile::exists(listener.path));
    ASSERT_TRUE(listener.Listen());
    EXPECT_TRUE(InstanceChannel(listener.path).AskToShow());
    EXPECT_EQ(listener.ShowsSeen(1), 1);
}

TEST(InstanceChannel, AskingWithNobodyListeningFails) {
    Listener listener;
    EXPECT_FALSE(listener.channel.AskToShow());
}

}  // namespace
}  // namespace tessarondel
