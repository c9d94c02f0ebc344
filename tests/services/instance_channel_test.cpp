#include "services/instance_channel.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include "services/qt_application.h"

namespace tessarondel {
namespace {

// Of these messages only the exact request, the last, shows the window.
TEST(InstanceChannel, ShowsOnlyForTheExactRequest) {
    testing::Application();
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("channel"));
    InstanceChannel channel(path);
    int shows = 0;
    ASSERT_TRUE(channel.Listen([&shows] { ++shows; }));
    for (const char* message : {"hello\n", "show-main-window\nshow", "show-main-window", "show-main-window\n"}) {
        QLocalSocket socket;
        socket.connectToServer(path);
        ASSERT_TRUE(socket.waitForConnected(2000));
        socket.write(message);
        socket.waitForBytesWritten(2000);
    }
    for (QDeadlineTimer settled(500); !settled.hasExpired();) QCoreApplication::processEvents();
    EXPECT_EQ(shows, 1);
}

}  // namespace
}  // namespace tessarondel
