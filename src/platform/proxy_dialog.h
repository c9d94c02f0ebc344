#pragma once

#include <QDialog>
#include <array>

#include "shell/proxy_dialog_model.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace tessarondel {

// frmProxy ("Option"): the proxy settings of the version check, modal.
class ProxyDialog final : public QDialog {
    Q_OBJECT
public:
    ProxyDialog(ProxyDialogModel& model, QWidget* parent = nullptr);

    // Loads the boxes from the held texts and runs the dialog to its close.
    int exec() override;
    void done(int result) override;

    QCheckBox* chkProxy() const { return chkProxy_; }
    QGroupBox* frameproxy() const { return frame_; }
    QCheckBox* chkKeepHistory() const { return keepHistory_; }
    QLineEdit* Box(ProxyField field) const { return boxes_[static_cast<std::size_t>(field)]; }
    QPushButton* cmdOK() const { return ok_; }
    QPushButton* cmdCancel() const { return cancel_; }
    QPushButton* cmdDefault() const { return default_; }

private:
    void Draw();

    ProxyDialogModel& model_;
    QCheckBox* chkProxy_ = nullptr;
    QGroupBox* frame_ = nullptr;
    std::array<QLineEdit*, 4> boxes_{};
    QCheckBox* keepHistory_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* default_ = nullptr;
};

}  // namespace tessarondel
