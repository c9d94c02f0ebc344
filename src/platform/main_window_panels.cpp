// The panels of frmMain, their controls and the pop-up menus.
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "platform/app_icon.h"
#include "platform/main_window.h"
#include "platform/qt_text.h"
#include "platform/report_list.h"
#include "platform/text_table_model.h"
#include "platform/widget_helpers.h"
#include "shell/keypad.h"
#include "shell/shell_captions.h"

namespace tessarondel {

namespace {

QBoxLayout* Tight(QBoxLayout* layout) {
    layout->setContentsMargins(2, 1, 2, 1);
    layout->setSpacing(2);
    return layout;
}

QStringList Headers(std::initializer_list<const char16_t*> captions) {
    QStringList headers;
    for (const char16_t* caption : captions) headers << ToQString(caption);
    return headers;
}

}  // namespace

QWidget* MainWindow::BuildExpressionPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("pBoxExpressionList"));
    auto* layout = Tight(new QVBoxLayout(panel));
    const ExpressionList& list = model_.Expressions();
    expressionRows_ = new TextTableModel(
        Headers({kExpressionListColumns[0], kExpressionListColumns[1], kExpressionListColumns[2]}),
        [&list] { return static_cast<int>(list.Rows().size()); },
        [&list](int row, int column) {
            const ExpressionRow& r = list.Rows()[static_cast<std::size_t>(row)];
            return ToQString(column == 0 ? r.Id : column == 1 ? r.Record.Expression : r.Record.Result);
        },
        this);
    lvOutput_ = MakeReportList(expressionRows_, u"Expression List", ExpressionList::kToolTip, panel);
    lvOutput_->header()->resizeSection(0, 40);
    lvOutput_->header()->resizeSection(1, 220);
    connect(lvOutput_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                model_.SelectExpressionRow(current.isValid() ? std::optional<std::size_t>(current.row())
                                                             : std::nullopt);
            });
    connect(lvOutput_, &QTreeView::doubleClicked, this, [this] { model_.DoubleClickExpressionList(); });
    auto* buttons = Tight(new QHBoxLayout);
    static const QString glyphs[4] = {QStringLiteral("(…)"), QStringLiteral("✕"), QStringLiteral("❐"),
                                      QStringLiteral("⤓")};
    for (int i = 0; i < 4; ++i) {
        QToolButton* button = MakePictureButton(glyphs[i], kExpressionListButtonToolTips[i], panel);
        connect(button, &QToolButton::clicked, this, [this, i] { model_.cmdlvOutput(i); });
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addWidget(lvOutput_);
    return panel;
}

QWidget* MainWindow::BuildCalculatorPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("pBoxCalculator"));
    auto* layout = Tight(new QVBoxLayout(panel));
    layout->addWidget(BuildLedBox());
    auto* inputRow = Tight(new QHBoxLayout);
    txtIn_ = new QLineEdit(panel);
    txtIn_->setAccessibleName(QStringLiteral("Input Area"));
    txtIn_->installEventFilter(this);
    connect(txtIn_, &QLineEdit::returnPressed, this, [this] { model_.PressEnter(); });
    connect(txtIn_, &QLineEdit::textEdited, this, [this](const QString& text) {
        model_.EditInput(ToU16(text), static_cast<std::size_t>(txtIn_->cursorPosition()), 0);
    });
    connect(txtIn_, &QLineEdit::cursorPositionChanged, this, [this] { ReportInputSelection(); });
    connect(txtIn_, &QLineEdit::selectionChanged, this, [this] { ReportInputSelection(); });
    QToolButton* evaluate = MakePictureButton(QStringLiteral("="), kEvaluateButton.ToolTip, panel);
    connect(evaluate, &QToolButton::clicked, this, [this] { model_.ClickEvaluate(); });
    inputRow->addWidget(txtIn_);
    inputRow->addWidget(evaluate);
    layout->addLayout(inputRow);
    layout->addWidget(BuildControlPanel());
    return panel;
}

QWidget* MainWindow::BuildLedBox() {
    auto* box = new QFrame;
    box->setObjectName(QStringLiteral("LEDBox"));
    box->setFrameShape(QFrame::StyledPanel);
    auto* layout = Tight(new QVBoxLayout(box));
    auto* top = Tight(new QHBoxLayout);
    auto* lastAns = new QLabel(ToQString(kLastAnswerLabel.Caption), box);
    lastAns->setToolTip(ToQString(kLastAnswerLabel.ToolTip));
    txtLEDResult_ = new QLineEdit(ToQString(model_.Display().Text()), box);
    txtLEDResult_->setReadOnly(true);
    txtLEDResult_->setAlignment(Qt::AlignRight);
    txtLEDResult_->setAccessibleName(QStringLiteral("Result"));
    txtLEDResult_->installEventFilter(this);
    QToolButton* copy = MakePictureButton(QStringLiteral("❐"), kCopyResultImage.ToolTip, box);
    connect(copy, &QToolButton::clicked, this, [this] { model_.CopyResultToClipboard(); });
    QToolButton* paste = MakePictureButton(QStringLiteral("⇩"), kPasteImage.ToolTip, box);
    connect(paste, &QToolButton::clicked, this, [this] { model_.PasteFromClipboard(); });
    top->addWidget(lastAns);
    top->addWidget(txtLEDResult_, 1);
    top->addWidget(copy);
    top->addWidget(paste);
    layout->addLayout(top);

    auto* bases = Tight(new QHBoxLayout);
    for (int i = 0; i < 4; ++i) {
        optBaseNum_[i] = new QRadioButton(ToQString(ResultDisplay::kBaseCaptions[i]), box);
        connect(optBaseNum_[i], &QRadioButton::clicked, this, [this, i] { model_.FocusBaseOption(i); });
        bases->addWidget(optBaseNum_[i]);
    }
    chkFormatNeg_ = new QCheckBox(box);
    NameByToolTip(chkFormatNeg_, ResultDisplay::kFormatNegToolTip);
    connect(chkFormatNeg_, &QCheckBox::clicked, this, [this](bool checked) { model_.ClickFormatNeg(checked); });
    chkFormatNegLbl_ = new QLabel(ToQString(ResultDisplay::kFormatNegCaption), box);
    chkFormatNegLbl_->setToolTip(ToQString(ResultDisplay::kFormatNegToolTip));
    chkFormatNegLbl_->installEventFilter(this);
    bases->addWidget(chkFormatNeg_);
    bases->addWidget(chkFormatNegLbl_);
    bases->addStretch();
    static const QString ledGlyphs[2] = {QStringLiteral("▲"), QStringLiteral("▼")};
    for (int i = 0; i < 2; ++i) {
        cmdLedBtn_[i] = MakePictureButton(ledGlyphs[i], kQuickReferenceButtonToolTips[i], box);
        cmdLedBtn_[i]->setFocusPolicy(Qt::TabFocus);
        connect(cmdLedBtn_[i], &QToolButton::clicked, this, [this, i] { model_.ClickQuickReferenceButton(i); });
        bases->addWidget(cmdLedBtn_[i]);
    }
    layout->addLayout(bases);
    DrawDisplay();
    DrawBaseOptions();
    return box;
}

QWidget* MainWindow::BuildControlPanel() {
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("pBoxControl"));
    auto* layout = Tight(new QHBoxLayout(panel));
    comApproximateBit_ = new QComboBox(panel);
    for (const auto& entry : ResultDisplay::ApproximateEntries()) comApproximateBit_->addItem(ToQString(entry));
    comApproximateBit_->setAccessibleName(QStringLiteral("Auto Round"));
    connect(comApproximateBit_, &QComboBox::activated, this, [this](int index) { model_.SelectApproximate(index); });
    layout->addWidget(comApproximateBit_);
    static const QString optionGlyphs[5] = {QStringLiteral("☰"), QStringLiteral("x="), QStringLiteral("ƒ"),
                                            QStringLiteral("▦"), QStringLiteral("⇡")};
    for (int i = 0; i < 5; ++i) {
        chkOpt_[i] = MakePictureButton(optionGlyphs[i], kOptionToolTips[i], panel);
        chkOpt_[i]->setCheckable(true);
        chkOpt_[i]->setChecked(model_.Option(i));
        connect(chkOpt_[i], &QToolButton::clicked, this, [this, i] { model_.ClickOption(i); });
        layout->addWidget(chkOpt_[i]);
    }
    layout->addStretch();
    auto* clearInput = new QToolButton(panel);
    clearInput->setText(ToQString(kClearInputButton.Caption));
    clearInput->setToolTip(ToQString(kClearInputButton.ToolTip));
    connect(clearInput, &QToolButton::clicked, this, [this] { model_.ClickClearInput(); });
    layout->addWidget(clearInput);
    mnuClearOther_ = new QMenu(this);
    layout->addWidget(MenuButton(QStringLiteral("⌫"), kClearOtherButton.ToolTip, mnuClearOther_, true));
    QToolButton* option = MakePictureButton(QStringLiteral("⚙"), kOptionButton.ToolTip, panel);
    connect(option, &QToolButton::clicked, this, [this] { model_.ClickOptions(); });
    QToolButton* help = MakePictureButton(QStringLiteral("?"), kHelpButton.ToolTip, panel);
    connect(help, &QToolButton::clicked, this, [this] { model_.ClickHelp(); });
    mnuInformation_ = new QMenu(this);
    QToolButton* about = MenuButton(QStringLiteral("ℹ"), kAboutButton.ToolTip, mnuInformation_, true);
    QToolButton* exit = MakePictureButton(QStringLiteral("✖"), kExitButton.ToolTip, panel);
    connect(exit, &QToolButton::clicked, this, [this] { model_.ClickExit(); });
    for (QWidget* button : {static_cast<QWidget*>(option), static_cast<QWidget*>(help), static_cast<QWidget*>(about),
                            static_cast<QWidget*>(exit)}) {
        layout->addWidget(button);
    }
    return panel;
}

QToolButton* MainWindow::MenuButton(const QString& caption, const char16_t* toolTip, QMenu* menu, bool picture) {
    QToolButton* button = MakePictureButton(caption, toolTip, this);
    if (!picture) {
        button->setAutoRaise(false);
        button->setAccessibleName(caption);
    }
    connect(button, &QToolButton::clicked, this, [this, menu, button] { ShowPopup(menu, button); });
    return button;
}

}  // namespace tessarondel
