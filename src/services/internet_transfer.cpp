#include "services/internet_transfer.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace tessarondel {

namespace {

QNetworkProxy ProxyFor(const TransferSettings& settings) {
    if (settings.Access == AccessType::Default) return QNetworkProxy(QNetworkProxy::DefaultProxy);
    return QNetworkProxy(QNetworkProxy::HttpProxy, QString::fromStdU16String(settings.Proxy),
                         static_cast<quint16>(settings.RemotePort), QString::fromStdU16String(settings.UserName),
                         QString::fromStdU16String(settings.Password));
}

// The server answered when there is a status line; a proxy that still wants
// credentials counts as no answer.
bool ServerAnswered(const QNetworkReply& reply) {
    if (reply.error() == QNetworkReply::NoError) return true;
    if (reply.error() == QNetworkReply::ProxyAuthenticationRequiredError) return false;
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

bool TimedOut(const QNetworkReply& reply) {
    return reply.error() == QNetworkReply::OperationCanceledError || reply.error() == QNetworkReply::TimeoutError;
}

}  // namespace

TransferResult InternetTransfer::OpenUrl(const QString& url) {
    QNetworkAccessManager manager;
    manager.setProxy(ProxyFor(settings_));
    QNetworkRequest request{QUrl(url)};
    request.setTransferTimeout(static_cast<int>(settings_.TransferTimeout.count()));
    QNetworkReply* reply = manager.get(request);

    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) loop.exec();

    TransferResult result;
    if (ServerAnswered(*reply)) {
        result.Body = QString::fromUtf8(reply->readAll());
    } else {
        result.Failure = TimedOut(*reply) ? TransferFailure::CallFailed : TransferFailure::Connection;
    }
    reply->deleteLater();
    return result;
}

}  // namespace tessarondel
