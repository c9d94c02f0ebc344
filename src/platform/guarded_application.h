#pragma once

#include <QApplication>

#include "shell/message_box.h"

namespace tessarondel {

// The widget application. A failure thrown out of an event handler is caught
// where the user acted and ends in a box; the program carries on.
class GuardedApplication final : public QApplication {
public:
    GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

    // The box that tells of a failure; none, and the failure is passed on.
    void ReportFailuresTo(MessageBox* box) { box_ = box; }
    bool notify(QObject* receiver, QEvent* event) override;

private:
    MessageBox* box_ = nullptr;
};

}  // namespace tessarondel
