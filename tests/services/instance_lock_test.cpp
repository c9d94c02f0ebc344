#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "services/instance_lock.h"

namespace tessarondel {
namespace {

TEST(InstanceLock, SecondHolderIsRefusedWhileTheFirstLives) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("tessarondel.lock"));
    InstanceLock first(path);
    ASSERT_TRUE(first.TryAcquire());
    InstanceLock second(path);
    EXPECT_FALSE(second.TryAcquire());
}

TEST(InstanceLock, LockOfAVanishedProcessIsTakenOver) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("tessarondel.lock"));
    QProcess gone;
    gone.start(QStringLiteral("true"), {});
    ASSERT_TRUE(gone.waitForStarted());
    const qint64 pid = gone.processId();
    ASSERT_TRUE(gone.waitForFinished());
    QFile stale(path);
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write(QByteArray::number(pid) + "\ntessarondel\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    stale.close();
    InstanceLock lock(path);
    EXPECT_TRUE(lock.TryAcquire());
}

}  // namespace
}  // namespace tessarondel
