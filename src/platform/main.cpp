// The entry procedure: the second-instance question, the settings, the
// windows, and the event loop. Everything else is wired in DesktopApplication.
#include <QNetworkProxyFactory>
#include <QTimer>
#include <exception>

#include "customfunctions/cfd_document.h"
#include "platform/desktop_application.h"
#include "platform/guarded_application.h"
#include "platform/qt_desktop.h"
#include "platform/qt_text.h"
#include "services/failure_report.h"
#include "services/instance_channel.h"
#include "services/instance_lock.h"
#include "services/maker_addresses.h"

namespace {

using namespace tessarondel;

DesktopConfiguration Configuration() {
    return {ToU16(QCoreApplication::applicationDirPath()),
            ResolveFunctionFolder(),
            {std::u16string(MakerSupportMailbox), std::u16string(MakerMailbox), std::u16string(MakerWebServer)},
            {std::u16string(MakerUpdateServer), std::u16string(MakerWebServer)}};
}

}  // namespace

int main(int argc, char* argv[]) {
    GuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);  // the main window hides to the tray
    QApplication::setDesktopFileName(QStringLiteral(TESSARONDEL_APP_ID));
    QtMessageBox box;
    try {
        InstanceLock instance;
        InstanceChannel channel;
        const bool first = instance.TryAcquire();
        if (!first && box.Show(SecondInstanceQuestion, u"Information", MessageButtons::YesNo, MessageIcon::Question) !=
                          MessageAnswer::Yes) {
            channel.AskToShow();  // the running instance brings its window back
            return 0;
        }
        QNetworkProxyFactory::setUseSystemConfiguration(true);  // the "default connection" of the version check
        QtSettingsStore store;
        DesktopApplication desktop(store, Configuration());
        desktop.Start();
        // The lock holder owns the channel; it opens once the window is up.
        if (first) {
            QTimer::singleShot(0, &channel, [&] { channel.Listen([&desktop] { desktop.ShowMainWindow(); }); });
        }
        application.ReportFailuresTo(&box);  // from now on a handler's failure ends in a box, not the program
        return QApplication::exec();
    } catch (const std::exception& failure) {
        box.Show(UnknownErrorText(DescribeFailure(failure)), u"Information", MessageButtons::Ok,
                 MessageIcon::Information);
        return 1;
    }
}
