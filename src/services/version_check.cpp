#include "services/version_check.h"

#include <QCoreApplication>

#include "numbers/text_rules.h"
#include "services/version_text.h"
#include "shell/desktop_open.h"

namespace tessarondel {

namespace {

constexpr std::u16string_view ConnectionErrorText = u"Some errors occurred when Tessarondel connected Internet!";

}  // namespace

std::u16string GetInfFromInternet(InternetTransfer& transfer, MessageBox& messages, std::u16string_view baseUrl,
                                  std::u16string_view fileName) {
    std::u16string address(baseUrl);
    address += TrimBlanks(fileName);
    QCoreApplication::processEvents();
    const TransferResult result = transfer.OpenUrl(QString::fromStdU16String(address));
    switch (result.Failure) {
        case TransferFailure::None:
            return std::u16string(TrimBlanks(result.Body.toStdU16String()));
        case TransferFailure::Connection:  // the transfer's error state
            messages.Show(ConnectionErrorText, u"Error", MessageButtons::Ok, MessageIcon::Critical);
            return {};
        case TransferFailure::CallFailed:  // the fetch call itself gave up
            messages.Show(ConnectionErrorText, u"Error", MessageButtons::Ok, MessageIcon::Information);
            return {};
    }
    return {};
}

void CheckForUpdate(InternetTransfer& transfer, MessageBox& messages, ShellOpener& opener,
                    const MakerServers& servers) {
    std::u16string base = servers.UpdateServer;
    base += VersionFolderPath;
    const std::u16string version = CleanVersionText(GetInfFromInternet(transfer, messages, base, VersionFileName));
    switch (JudgeVersion(version)) {
        case VersionVerdict::Latest:
            messages.Show(u"This is the lastest version of Tessarondel!", u"Information", MessageButtons::Ok,
                          MessageIcon::Information);
            return;
        case VersionVerdict::Unknown:
            messages.Show(u"Can not get the information of the version!", u"Error", MessageButtons::Ok,
                          MessageIcon::Critical);
            return;
        case VersionVerdict::Newer:
            if (messages.Show(NewVersionQuestion(version), u"Find new version", MessageButtons::YesNoCancel,
                              MessageIcon::Question) == MessageAnswer::Yes) {
                OpenWithDesktop(opener, messages, servers.WebServer + std::u16string(DownloadPagePath));
            }
            return;
    }
}

}  // namespace tessarondel
