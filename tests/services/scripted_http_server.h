#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>

namespace tessarondel::testing {

// A one-thread HTTP server on 127.0.0.1 whose answer to a request head is
// scripted; an empty answer keeps the connection open without a word.
class ScriptedHttpServer {
public:
    using Responder = std::function<QByteArray(const QByteArray& head)>;

    // lowPort: a port that fits 16 signed bits, as a proxy port must.
    explicit ScriptedHttpServer(Responder responder, bool lowPort = false) : responder_(std::move(responder)) {
        if (lowPort) {
            for (quint16 port = 20000 + quint16(QCoreApplication::applicationPid() % 5000);
                 !server_.listen(QHostAddress::LocalHost, port) && port < 32767; ++port) {
            }
        } else {
            server_.listen(QHostAddress::LocalHost);
        }
        QObject::connect(&server_, &QTcpServer::newConnection, [this] { Accept(); });
    }

    quint16 Port() const { return server_.serverPort(); }
    QString BaseUrl() const { return QStringLiteral("http://127.0.0.1:%1").arg(Port()); }
    const QList<QByteArray>& Heads() const { return heads_; }

    static QByteArray Response(const QByteArray& status, const QByteArray& body, const QByteArray& extra = {}) {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n" + extra + "\r\n" + body;
    }

private:
    void Accept() {
        while (QTcpSocket* socket = server_.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { Serve(socket); });
        }
    }

    void Serve(QTcpSocket* socket) {
        QByteArray& buffer = pending_[socket];
        buffer += socket->readAll();
        const qsizetype end = buffer.indexOf("\r\n\r\n");
        if (end < 0) return;
        const QByteArray head = buffer.left(end);
        buffer.clear();
        heads_.append(head);
        const QByteArray answer = responder_(head);
        if (answer.isEmpty()) return;
        socket->write(answer);
        socket->disconnectFromHost();
    }

    QTcpServer server_;
    Responder responder_;
    QHash<QTcpSocket*, QByteArray> pending_;
    QList<QByteArray> heads_;
};

}  // namespace tessarondel::testing
