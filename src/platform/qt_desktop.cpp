#include "platform/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QUrl>

#include "platform/qt_text.h"

namespace tessarondel {

namespace {

QMessageBox::Icon ToQtIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information: return QMessageBox::Information;
        case MessageIcon::Question: return QMessageBox::Question;
        case MessageIcon::Critical: return QMessageBox::Critical;
        case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQtButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MessageButtons::Ok: break;
    }
    return QMessageBox::Ok;
}

MessageAnswer FromQtButton(int button) {
    switch (button) {
        case QMessageBox::Yes: return MessageAnswer::Yes;
        case QMessageBox::No: return MessageAnswer::No;
        case QMessageBox::Ok: return MessageAnswer::Ok;
        default: return MessageAnswer::Cancel;
    }
}

}  // namespace

MessageAnswer QtMessageBox::Show(std::u16string_view text, std::u16string_view title, MessageButtons buttons,
                                 MessageIcon icon) {
    QMessageBox box(ToQtIcon(icon), ToQString(title), ToQString(text), ToQtButtons(buttons),
                    QApplication::activeWindow());
    return FromQtButton(box.exec());
}

std::u16string QtClipboard::GetText() { return ToU16(QGuiApplication::clipboard()->text()); }

void QtClipboard::SetText(std::u16string_view text) { QGuiApplication::clipboard()->setText(ToQString(text)); }

QString ToQtFileFilter(std::u16string_view filter) {
    const QStringList parts = ToQString(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) filters << parts[i] + QStringLiteral(" (") + parts[i + 1] + ')';
    return filters.join(QStringLiteral(";;"));
}

std::u16string QtSaveFileDialog::AskSaveFileName(std::u16string_view filter) {
    return ToU16(QFileDialog::getSaveFileName(QApplication::activeWindow(), QString(), QString(),
                                              ToQtFileFilter(filter), nullptr,
                                              QFileDialog::DontConfirmOverwrite));
}

bool QtShellOpener::ShellOpen(std::u16string_view target) {
    const QString text = ToQString(target);
    const QUrl url = text.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(text) : QUrl(text);
    return QDesktopServices::openUrl(url);
}

}  // namespace tessarondel
