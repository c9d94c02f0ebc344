#include "services/instance_channel.h"

#include <unistd.h>

#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

namespace tessarondel {

namespace {

constexpr char ShowRequest[] = "show-main-window\n";
constexpr qint64 ShowRequestSize = sizeof ShowRequest - 1;
constexpr int ClientWaitMs = 2000;

QString DefaultSocketPath() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) folder = QDir::tempPath();
    return QStringLiteral("%1/%2-%3.socket").arg(folder, QStringLiteral(TESSARONDEL_APP_ID)).arg(::getuid());
}

}  // namespace

InstanceChannel::InstanceChannel() : InstanceChannel(DefaultSocketPath()) {}

InstanceChannel::InstanceChannel(QString socketPath) : path_(std::move(socketPath)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &InstanceChannel::Accept);
}

bool InstanceChannel::Listen(std::function<void()> onShow) {
    onShow_ = std::move(onShow);
    // With an access option Qt binds in a private folder and renames the
    // socket into place, which replaces a file left by a crashed run.
    return server_.listen(path_);
}

// A request is read whole when the sender hangs up; a longer one is cut off.
void InstanceChannel::Accept() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, socket, [socket] {
            if (socket->bytesAvailable() > ShowRequestSize) socket->abort();
        });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            if (socket->readAll() == ShowRequest) onShow_();
            socket->deleteLater();
        });
    }
}

bool InstanceChannel::AskToShow() const {
    QLocalSocket socket;
    socket.connectToServer(path_);
    if (!socket.waitForConnected(ClientWaitMs)) return false;
    socket.write(ShowRequest, ShowRequestSize);
    const bool sent = socket.waitForBytesWritten(ClientWaitMs);
    socket.disconnectFromServer();
    return sent;
}

}  // namespace tessarondel
