#pragma once

#include <QLockFile>
#include <QString>

namespace tessarondel {

// Tells whether another instance of the program is running: the first one
// holds a lock file in the user's runtime directory for its whole life. A lock
// left by a crashed instance (its process gone) is taken over.
class InstanceLock {
public:
    // The lock file "tessarondel.lock" in the runtime directory.
    InstanceLock();
    explicit InstanceLock(const QString& lockFilePath);

    // True when this process now holds the lock; false when a live instance does.
    bool TryAcquire();

private:
    QLockFile lock_;
};

inline constexpr char16_t SecondInstanceQuestion[] =
    u"This application is running in the memory!Do you want to load another one?";

}  // namespace tessarondel
