#include "services/instance_lock.h"

#include <QDir>
#include <QStandardPaths>

namespace tessarondel {

namespace {

QString DefaultLockPath() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) folder = QDir::tempPath();
    return folder + QStringLiteral("/tessarondel.lock");
}

}  // namespace

InstanceLock::InstanceLock() : InstanceLock(DefaultLockPath()) {}

// No age limit: a lock is stale only when the process that wrote it is gone,
// however long a live instance has been running.
InstanceLock::InstanceLock(const QString& lockFilePath) : lock_(lockFilePath) { lock_.setStaleLockTime(0); }

bool InstanceLock::TryAcquire() { return lock_.tryLock(0); }

}  // namespace tessarondel
