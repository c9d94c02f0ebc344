#pragma once

#include <QDialog>

#include "shell/desktop_services.h"
#include "shell/main_window_model.h"

namespace tessarondel {

// frmAbout: the icon, the version text and three links; a click closes it.
class AboutDialog final : public QDialog {
    Q_OBJECT
public:
    AboutDialog(const MakerAddresses& maker, ShellOpener& opener, MessageBox& box, QWidget* parent = nullptr);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace tessarondel
