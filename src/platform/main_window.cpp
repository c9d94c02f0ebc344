#include "platform/main_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCursor>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeView>
#include <QWindow>
#include <algorithm>

#include "platform/app_icon.h"
#include "platform/help_window.h"
#include "platform/qt_text.h"
#include "platform/text_table_model.h"
#include "platform/twips.h"
#include "services/tray_state.h"

namespace tessarondel {

MainWindow::MainWindow(MainWindowModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    setWindowTitle(ToQString(MainWindowModel::kTitle));
    setWindowIcon(AppIcon());
    auto* form = new QWidget(this);  // pBoxForm
    form->setObjectName(QStringLiteral("pBoxForm"));
    pBoxExpressionList_ = BuildExpressionPanel();
    pBoxCalculator_ = BuildCalculatorPanel();
    pBoxInputPanel_ = BuildInputPanel();
    for (QWidget* panel : {pBoxExpressionList_, pBoxCalculator_, pBoxInputPanel_}) panel->setParent(form);
    pBoxState_ = BuildStatePanel();
    pBoxState_->setParent(this);
    BuildMenus();
    // Keyboard ways to the commands that otherwise need the mouse.
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, [this] { model_.cmdlvOutput(3); });
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] { model_.ClickHelp(); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this), &QShortcut::activated, this,
            [this] { model_.ClickExit(); });
    setTabOrder(txtIn_, comApproximateBit_);
    DrawLayout();
}

void MainWindow::Apply(MainWindowChange change) {
    switch (change) {
        case MainWindowChange::InputArea: DrawInputArea(); break;
        case MainWindowChange::Display: DrawDisplay(); break;
        case MainWindowChange::BaseOptions: DrawBaseOptions(); break;
        case MainWindowChange::Approximate: {
            const QSignalBlocker blocker(comApproximateBit_);
            comApproximateBit_->setCurrentIndex(model_.Display().ApproximateIndex());
            comApproximateBit_->setToolTip(ToQString(model_.Display().ApproximateToolTip()));
            break;
        }
        case MainWindowChange::QuickReference:
            txtQRef_->setPlainText(ToQString(model_.QuickReference()).replace(QStringLiteral("\r\n"), "\n"));
            break;
        case MainWindowChange::QuickReferencePair: DrawQuickReferencePair(); break;
        case MainWindowChange::Layout: DrawLayout(); break;
        case MainWindowChange::ExpressionRowAdded:
            expressionRows_->SyncAppended();
            lvOutput_->scrollToBottom();
            break;
        case MainWindowChange::ExpressionListCleared: expressionRows_->SyncAll(); break;
        case MainWindowChange::ExpressionSelection: {
            const auto row = model_.Expressions().SelectedRow();
            const QSignalBlocker blocker(lvOutput_->selectionModel());
            if (row) lvOutput_->setCurrentIndex(expressionRows_->index(static_cast<int>(*row), 0));
            break;
        }
        case MainWindowChange::Options: DrawOptions(); break;
        case MainWindowChange::StayOnTop: DrawStayOnTop(); break;
        case MainWindowChange::WindowShown: DrawWindowShown(); break;
        case MainWindowChange::WindowPosition: DrawWindowPosition(); break;
        case MainWindowChange::FocusInputArea: DrawFocus(); break;
        default: break;  // menus fill when they open
    }
}

void MainWindow::DrawInputArea() {
    const QSignalBlocker blocker(txtIn_);
    const InputArea& input = model_.Input();
    txtIn_->setText(ToQString(input.Text()));
    const int start = static_cast<int>(input.SelectionStart());
    const int length = static_cast<int>(input.SelectionLength());
    if (length > 0) {
        txtIn_->setSelection(start, length);
    } else {
        txtIn_->setCursorPosition(start);
    }
}

void MainWindow::ReportInputSelection() {
    if (txtIn_->hasSelectedText()) {
        model_.SetInputSelection(static_cast<std::size_t>(txtIn_->selectionStart()),
                                 static_cast<std::size_t>(txtIn_->selectionLength()));
    } else {
        model_.SetInputSelection(static_cast<std::size_t>(txtIn_->cursorPosition()), 0);
    }
}

void MainWindow::DrawDisplay() {
    const ResultDisplay& display = model_.Display();
    txtLEDResult_->setText(ToQString(display.Text()));
    const DisplayLook& look = display.Look();
    QPalette palette = txtLEDResult_->palette();
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Text, QColor::fromRgb(look.Colour));
    txtLEDResult_->setPalette(palette);
    QFont font = txtLEDResult_->font();
    font.setPointSize(look.FontSize);
    font.setBold(look.Bold);
    font.setItalic(look.Italic);
    txtLEDResult_->setFont(font);
}

void MainWindow::DrawBaseOptions() {
    const ResultDisplay& display = model_.Display();
    for (int i = 0; i < 4; ++i) {
        const QSignalBlocker blocker(optBaseNum_[i]);
        optBaseNum_[i]->setVisible(display.BaseOptionsVisible());
        optBaseNum_[i]->setChecked(display.SelectedBase() == i);
    }
    const QSignalBlocker blocker(chkFormatNeg_);
    chkFormatNeg_->setChecked(display.FormatNegChecked());
    chkFormatNeg_->setVisible(display.FormatNegVisible());
    chkFormatNegLbl_->setVisible(display.FormatNegVisible());
}

void MainWindow::DrawQuickReferencePair() {
    for (int i = 0; i < 2; ++i) cmdLedBtn_[i]->setVisible(model_.QuickReferenceButtonVisible(i));
    txtQRef_->setVisible(model_.QuickRefShown());
    panelQR_->setVisible(model_.QuickRefShown());
}

// Places the panels where the model's layout puts them, in twips through the
// screen's DPI; the window's height follows. The width is the design's unless
// a larger desktop font needs more room for the panels' captions.
void MainWindow::DrawLayout() {
    const TwipScale scale = TwipScale::For(this);
    const PanelLayout& layout = model_.Layout();
    int width = scale.ToPixels(layout.WindowWidth - FrameWidthTwips);
    for (const QWidget* panel : {pBoxExpressionList_, pBoxCalculator_, pBoxInputPanel_, pBoxState_}) {
        width = std::max(width, panel->minimumSizeHint().width());
    }
    auto place = [&](QWidget* panel, const PanelGeometry& geometry) {
        panel->setGeometry(0, scale.ToPixels(geometry.Top), width, scale.ToPixels(geometry.Height));
        panel->setVisible(geometry.Visible);
    };
    place(pBoxExpressionList_->parentWidget(), layout.Form);
    place(pBoxExpressionList_, layout.ExpressionList);
    place(pBoxCalculator_, layout.Calculator);
    place(pBoxInputPanel_, layout.InputPanel);
    place(pBoxState_, layout.State);
    setFixedSize(width, scale.ToPixels(layout.State.Top + layout.State.Height + 60));
}

void MainWindow::DrawOptions() {
    for (int i = 0; i < 5; ++i) {
        const QSignalBlocker blocker(chkOpt_[i]);
        chkOpt_[i]->setChecked(model_.Option(i));
    }
}

// The band changes on the native window, which asks the window manager for
// the above state; setting the widget's flag would hide the window and create
// its native window anew. A window not yet shown takes the flag when created.
void MainWindow::DrawStayOnTop() {
    const bool onTop = model_.Option(OptionStayOnTop);
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, onTop));
    if (QWindow* native = windowHandle()) native->setFlag(Qt::WindowStaysOnTopHint, onTop);
}

void MainWindow::DrawWindowShown() {
    if (model_.WindowShownState() != 0) {
        showNormal();
        raise();
        activateWindow();
    } else {
        hide();
    }
}

// The focus also comes back here from the side windows' inserts and closes;
// the keys only reach the Input Area once this window is the active one. A
// window hidden to the tray stays hidden.
void MainWindow::DrawFocus() {
    if (isVisible() && !isActiveWindow()) {
        raise();
        activateWindow();
    }
    txtIn_->setFocus(Qt::OtherFocusReason);
}

void MainWindow::DrawWindowPosition() {
    const TwipScale scale = TwipScale::For(this);
    move(scale.ToPixels(model_.WindowLeft()), scale.ToPixels(model_.WindowTop()));
}

void MainWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    const TwipScale scale = TwipScale::For(this);
    model_.SetWindowPosition(scale.ToTwips(x()), scale.ToTwips(y()));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (closeAllowed_ || qGuiApp->isSavingSession()) {
        event->accept();
        return;
    }
    event->ignore();
    if (DecideFrameCloseAction(trayAvailable_) == TrayAction::Minimise) {
        showMinimized();
    } else {
        model_.CloseByFrame();
    }
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtIn_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up) model_.PressUp();
        if (key == Qt::Key_Down) model_.PressDown();
        return false;  // the arrows are not swallowed
    }
    if (watched == txtIn_ && event->type() == QEvent::ToolTip) {
        txtIn_->setToolTip(ToQString(model_.Input().ToolTip()));
    }
    if (watched == txtLEDResult_ && event->type() == QEvent::ToolTip) {
        txtLEDResult_->setToolTip(ToQString(model_.Display().ToolTip()));
    }
    if (watched == txtLEDResult_ && event->type() == QEvent::MouseButtonDblClick) {
        model_.DoubleClickDisplay();
        return true;
    }
    if (watched == chkFormatNegLbl_ && event->type() == QEvent::MouseButtonRelease) {
        model_.ClickFormatNegLabel();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void MainWindow::ShowHelpWindow() {
    if (help_ == nullptr) help_ = new HelpWindow(this);
    help_->ShowManual(model_.ManualPage());
}

void MainWindow::ShowPopup(QMenu* menu, QWidget* anchor) {
    menu->popup(anchor->mapToGlobal(QPoint(0, anchor->height())));
}

void MainWindow::PopupMainMenu() { mnuMain_->popup(QCursor::pos()); }

}  // namespace tessarondel
