#include "platform/proxy_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt_text.h"

namespace tessarondel {

ProxyDialog::ProxyDialog(ProxyDialogModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setWindowTitle(ToQString(ProxyDialogModel::kTitle));
    setModal(true);
    chkProxy_ = new QCheckBox(ToQString(ProxyDialogModel::kUseProxyCaption), this);
    connect(chkProxy_, &QCheckBox::clicked, this, [this](bool checked) {
        model_.ClickUseProxy(checked);
        Draw();
    });
    frame_ = new QGroupBox(ToQString(ProxyDialogModel::kFrameCaption), this);
    auto* form = new QFormLayout(frame_);
    const std::array<const char16_t*, 4> labels = {ProxyDialogModel::kProxyLabel, ProxyDialogModel::kPortLabel,
                                                   ProxyDialogModel::kUserNameLabel, ProxyDialogModel::kPasswordLabel};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = new QLineEdit(frame_);
        const auto field = static_cast<ProxyField>(i);
        connect(boxes_[i], &QLineEdit::textEdited, this,
                [this, field](const QString& text) { model_.SetFieldText(field, ToU16(text)); });
        auto* label = new QLabel(ToQString(labels[i]), frame_);
        label->setBuddy(boxes_[i]);
        form->addRow(label, boxes_[i]);
    }
    QLineEdit* password = Box(ProxyField::Password);
    password->setEchoMode(QLineEdit::Password);
    password->setStyleSheet(
        QStringLiteral("lineedit-password-character: %1").arg(int(ProxyDialogModel::kPasswordMask)));

    auto* history = new QGroupBox(ToQString(ProxyDialogModel::kHistoryFrameCaption), this);
    keepHistory_ = new QCheckBox(ToQString(ProxyDialogModel::kKeepHistoryCaption), history);
    connect(keepHistory_, &QCheckBox::clicked, this, [this](bool checked) { model_.ClickKeepHistory(checked); });
    (new QVBoxLayout(history))->addWidget(keepHistory_);

    ok_ = new QPushButton(ToQString(ProxyDialogModel::kOkCaption), this);
    cancel_ = new QPushButton(ToQString(ProxyDialogModel::kCancelCaption), this);
    default_ = new QPushButton(ToQString(ProxyDialogModel::kDefaultCaption), this);
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, this, [this] {
        model_.ClickOk();
        accept();
    });
    connect(cancel_, &QPushButton::clicked, this, [this] {
        model_.ClickCancel();
        reject();
    });
    connect(default_, &QPushButton::clicked, this, [this] {
        model_.ClickDefault();
        accept();
    });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {ok_, cancel_, default_}) buttons->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(chkProxy_);
    layout->addWidget(frame_);
    layout->addWidget(history);
    layout->addLayout(buttons);
}

int ProxyDialog::exec() {
    model_.Open();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->setText(ToQString(model_.FieldText(static_cast<ProxyField>(i))));
    }
    Draw();
    return QDialog::exec();
}

// Every way out, the frame and Escape included, ends the dialog's open state.
void ProxyDialog::done(int result) {
    if (model_.IsOpen()) model_.Close();
    QDialog::done(result);
}

void ProxyDialog::Draw() {
    chkProxy_->setChecked(model_.UseProxyChecked());
    keepHistory_->setChecked(model_.KeepHistoryChecked());
    frame_->setVisible(model_.FrameVisible());
    adjustSize();
}

}  // namespace tessarondel
