#include "platform/session_end.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace tessarondel {

namespace {

constexpr std::array<int, 3> EndingSignals = {SIGTERM, SIGHUP, SIGINT};

// The read and write ends of the pipe from the signal handler to the event loop.
int signalPipe[2] = {-1, -1};

extern "C" void WriteSignalToPipe(int number) {
    const int savedErrno = errno;
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
    errno = savedErrno;
}

void SetSignalHandler(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int number : EndingSignals) sigaction(number, &action, nullptr);
}

}  // namespace

SessionEnd::SessionEnd(std::function<void()> exit, QObject* parent) : QObject(parent), exit_(std::move(exit)) {
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        notifier_ = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
        connect(notifier_, &QSocketNotifier::activated, this, &SessionEnd::ReadSignal);
        SetSignalHandler(WriteSignalToPipe);
    }
    // Without a session manager the signal is simply never sent.
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { CommitData(); });
    }
}

SessionEnd::~SessionEnd() {
    if (notifier_ == nullptr) return;
    SetSignalHandler(SIG_DFL);
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
    signalPipe[0] = signalPipe[1] = -1;
}

void SessionEnd::ReadSignal() {
    char bytes[16];
    while (::read(signalPipe[0], bytes, sizeof bytes) > 0) {
    }
    exit_();
}

}  // namespace tessarondel
