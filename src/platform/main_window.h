#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "shell/main_window_model.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QRadioButton;
class QToolButton;
class QTreeView;

namespace tessarondel {

class HelpWindow;
class TextTableModel;

// frmMain: a column of panels over MainWindowModel. Every handler calls one
// model operation; every change the model announces is drawn from the model.
class MainWindow final : public QWidget {
    Q_OBJECT
public:
    explicit MainWindow(MainWindowModel& model, QWidget* parent = nullptr);

    // Draws what the model says changed; the application forwards every change here.
    void Apply(MainWindowChange change);
    // The tray's answer to a close by the frame where the desktop has no tray.
    void SetTrayAvailable(bool available) { trayAvailable_ = available; }
    // The main pop-up menu at the mouse, as the tray's right click opens it.
    void PopupMainMenu();
    // The manual at the model's ManualPage(), in the window's own help window.
    void ShowHelpWindow();
    // From the exit on, a close is let through instead of hiding the window:
    // a session manager closes every window at logout.
    void AllowClose() { closeAllowed_ = true; }

    // For tests and the tray: the controls by their design names.
    QLineEdit* txtIn() const { return txtIn_; }
    QLineEdit* txtLEDResult() const { return txtLEDResult_; }
    QPlainTextEdit* txtQRef() const { return txtQRef_; }
    QTreeView* lvOutput() const { return lvOutput_; }
    TextTableModel* ExpressionRows() const { return expressionRows_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildExpressionPanel();
    QWidget* BuildCalculatorPanel();
    QWidget* BuildLedBox();
    QWidget* BuildControlPanel();
    QWidget* BuildInputPanel();
    QWidget* BuildKeypad();
    QWidget* BuildMenuButtons();
    QWidget* BuildStatePanel();
    void BuildMenus();
    QToolButton* MenuButton(const QString& caption, const char16_t* toolTip, QMenu* menu, bool picture);

    void DrawInputArea();
    void DrawDisplay();
    void DrawBaseOptions();
    void DrawQuickReferencePair();
    void DrawLayout();
    void DrawOptions();
    void DrawStayOnTop();
    void DrawWindowShown();
    void DrawFocus();
    void DrawWindowPosition();
    void ReportInputSelection();
    void ShowPopup(QMenu* menu, QWidget* anchor);

    MainWindowModel& model_;
    bool trayAvailable_ = true;
    bool closeAllowed_ = false;
    bool placing_ = false;
    HelpWindow* help_ = nullptr;  // made when Help first needs it

    QWidget* pBoxExpressionList_ = nullptr;
    QWidget* pBoxCalculator_ = nullptr;
    QWidget* pBoxInputPanel_ = nullptr;
    QWidget* pBoxState_ = nullptr;
    QTreeView* lvOutput_ = nullptr;
    TextTableModel* expressionRows_ = nullptr;
    QLineEdit* txtIn_ = nullptr;
    QLineEdit* txtLEDResult_ = nullptr;
    QPlainTextEdit* txtQRef_ = nullptr;
    QWidget* panelQR_ = nullptr;
    std::array<QRadioButton*, 4> optBaseNum_{};
    QCheckBox* chkFormatNeg_ = nullptr;
    QLabel* chkFormatNegLbl_ = nullptr;
    QComboBox* comApproximateBit_ = nullptr;
    std::array<QToolButton*, 2> cmdLedBtn_{};
    std::array<QToolButton*, 5> chkOpt_{};

    QMenu* mnuResultList_ = nullptr;
    QMenu* mnuBIFunctions_ = nullptr;
    QMenu* mnuConstants_ = nullptr;
    QMenu* mnuClearOther_ = nullptr;
    QMenu* mnuInformation_ = nullptr;
    QMenu* mnuMain_ = nullptr;
};

}  // namespace tessarondel
