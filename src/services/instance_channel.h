#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <functional>

namespace tessarondel {

// How a later launch reaches the running instance: a local socket in the
// user's runtime directory, open to that user only. Only the instance holding
// the InstanceLock listens, so a socket file found there is a crashed run's; a
// later launch answered No asks the listener to show its window.
class InstanceChannel final : public QObject {
    Q_OBJECT
public:
    // The socket named by the application id and the user id in the runtime directory.
    InstanceChannel();
    explicit InstanceChannel(QString socketPath);

    // Listens; onShow runs for every exact show request, anything else is
    // ignored. A socket file left by a crashed run is taken over.
    bool Listen(std::function<void()> onShow);
    // Asks the instance listening on the socket to show its window; false when none answered.
    bool AskToShow() const;

private:
    void Accept();

    QString path_;
    QLocalServer server_;
    std::function<void()> onShow_;
};

}  // namespace tessarondel
