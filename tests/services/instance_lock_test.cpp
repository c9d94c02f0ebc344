#include "services/instance_lock.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace tessarondel {
namespace {

// A lock is stale only when the process that wrote it is gone, however old it is.
TEST(InstanceLock, SecondHolderIsRefusedButALockOfAVanishedProcessIsTakenOver) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("tessarondel.lock"));
    {
        InstanceLock first(path);
        ASSERT_TRUE(first.TryAcquire());
        InstanceLock second(path);
        EXPECT_FALSE(second.TryAcquire());
    }
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
