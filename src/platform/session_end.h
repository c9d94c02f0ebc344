#pragma once

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace tessarondel {

// Turns the end of the desktop session into the program's orderly exit: the
// session manager's commit-data request at logout, and SIGTERM, SIGHUP and
// SIGINT (the user session being stopped, the terminal gone, Ctrl+C). A signal
// handler may do next to nothing, so it only writes to a pipe, and the exit
// runs on the event loop when the pipe turns readable. One at a time.
class SessionEnd final : public QObject {
    Q_OBJECT
public:
    explicit SessionEnd(std::function<void()> exit, QObject* parent = nullptr);
    ~SessionEnd() override;

    // The session manager asks for the data to be saved: the exit runs. A
    // logout is never refused, so the manager is never told to cancel.
    void CommitData() { exit_(); }

private:
    void ReadSignal();

    std::function<void()> exit_;
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace tessarondel
