#include "platform/guarded_application.h"

#include "services/failure_report.h"

namespace tessarondel {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        if (box_ == nullptr) throw;
        box_->Show(UnknownErrorText(DescribeFailure(failure)), u"Error", MessageButtons::Ok, MessageIcon::Information);
        return false;
    }
}

}  // namespace tessarondel
