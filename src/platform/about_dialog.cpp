#include "platform/about_dialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/app_icon.h"
#include "platform/qt_text.h"
#include "services/version_check.h"
#include "services/version_text.h"
#include "shell/desktop_open.h"

namespace tessarondel {

namespace {

QPushButton* LinkButton(const QString& caption, QWidget* parent) {
    auto* link = new QPushButton(caption, parent);
    link->setFlat(true);
    link->setCursor(Qt::PointingHandCursor);
    return link;
}

}  // namespace

AboutDialog::AboutDialog(const MakerAddresses& maker, ShellOpener& opener, MessageBox& box, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(QStringLiteral("About Tessarondel"));
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    auto* icon = new QLabel(this);
    icon->setPixmap(AppIcon().pixmap(64, 64));
    icon->setAlignment(Qt::AlignCenter);
    auto* title = new QLabel(QStringLiteral("<b>Tessarondel</b>"), this);
    title->setAlignment(Qt::AlignCenter);
    auto* lblVer = new QLabel(ToQString(BuildVersionText), this);
    lblVer->setObjectName(QStringLiteral("lblVer"));
    lblVer->setAlignment(Qt::AlignCenter);
    layout->addWidget(icon);
    layout->addWidget(title);
    layout->addWidget(lblVer);
    const struct {
        QString caption;
        std::u16string target;
    } links[] = {
        {QStringLiteral("Report a bug"), u"mailto:" + maker.SupportMailbox + u"?subject=Tessarondel Bug Report"},
        {QStringLiteral("Send feedback"), u"mailto:" + maker.Mailbox + u"?subject=Tessarondel Feedback"},
        {QStringLiteral("Home page"), maker.WebServer + std::u16string(HomePagePath)},
    };
    for (const auto& link : links) {
        QPushButton* button = LinkButton(link.caption, this);
        connect(button, &QPushButton::clicked, this,
                [&opener, &box, target = link.target] { OpenWithDesktop(opener, box, target); });
        layout->addWidget(button);
    }
    auto* close = new QPushButton(QStringLiteral("OK"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(close);
}

void AboutDialog::mouseReleaseEvent(QMouseEvent* event) {
    QDialog::mouseReleaseEvent(event);
    accept();
}

}  // namespace tessarondel
