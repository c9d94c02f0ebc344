#pragma once

#include <QString>

#include "services/proxy_settings.h"

namespace tessarondel {

// How a fetch ended. A server that answers gives its body, error pages
// included; only a transfer that gets no answer fails.
enum class TransferFailure {
    None,
    Connection,  // refused, unreachable, proxy refusing us: the transfer's error state
    CallFailed,  // the time-out ran out while waiting
};

struct TransferResult {
    QString Body;
    TransferFailure Failure = TransferFailure::None;
};

// The one transfer object of the program: a synchronous HTTP GET that keeps
// window events running while it waits, through the configured proxy.
class InternetTransfer {
public:
    TransferSettings& Settings() { return settings_; }
    const TransferSettings& Settings() const { return settings_; }

    TransferResult OpenUrl(const QString& url);

private:
    TransferSettings settings_;
};

}  // namespace tessarondel
