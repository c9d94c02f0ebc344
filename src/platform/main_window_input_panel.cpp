// frmMain's input panel (keypad, catalogue buttons, Quick Reference), its foot
// strip and its pop-up menus.
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/app_icon.h"
#include "platform/main_window.h"
#include "platform/qt_text.h"
#include "platform/widget_helpers.h"
#include "shell/keypad.h"
#include "shell/shell_captions.h"

namespace tessarondel {

namespace {

// The least room that shows the whole caption in the button's own font, with
// half a character either side: the panel's rows and grids size from their
// captions, so no desktop font or scale clips one.
QToolButton* FitToCaption(QToolButton* button) {
    const QFontMetrics metrics(button->font());
    const int frame = button->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, button);
    const int padding = metrics.averageCharWidth() / 2;
    button->setMinimumSize(metrics.horizontalAdvance(button->text()) + 2 * (frame + padding),
                           metrics.height() + 2 * frame);
    return button;
}

// Keypad buttons don't take the focus on a click, so the input's selection
// survives until the click replaces it; Tab still reaches them.
QToolButton* KeypadButton(const QString& caption, int colour, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setText(caption);
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    FitToCaption(button);
    if (colour >= 0) {
        QPalette palette = button->palette();
        palette.setColor(QPalette::ButtonText, ClassicPaletteColour(colour));
        button->setPalette(palette);
    }
    return button;
}

struct KeypadBlock {
    KeypadGroup Group;
    int Columns;
};

}  // namespace

QWidget* MainWindow::BuildInputPanel() {
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("pBoxInputPanel"));
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(2, 1, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(BuildKeypad(), 3);
    layout->addWidget(BuildMenuButtons());
    panelQR_ = new QFrame(panel);  // PanelQR, the strip that frames the Quick Reference
    auto* qrLayout = new QVBoxLayout(panelQR_);
    qrLayout->setContentsMargins(0, 0, 0, 0);
    txtQRef_ = new QPlainTextEdit(ToQString(model_.QuickReference()).replace(QStringLiteral("\r\n"), "\n"), panelQR_);
    txtQRef_->setReadOnly(true);
    txtQRef_->setToolTip(ToQString(kQuickReferenceBox.ToolTip));
    txtQRef_->setAccessibleName(QStringLiteral("Quick Reference"));
    txtQRef_->setFocusPolicy(Qt::ClickFocus);
    qrLayout->addWidget(txtQRef_);
    layout->addWidget(panelQR_, 2);
    return panel;
}

QWidget* MainWindow::BuildKeypad() {
    auto* keypad = new QWidget;
    auto* row = new QHBoxLayout(keypad);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    QFont small = keypad->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    keypad->setFont(small);
    const KeypadBlock blocks[] = {{KeypadGroup::Number, 3}, {KeypadGroup::Bracket, 1}, {KeypadGroup::Operator, 6},
                                  {KeypadGroup::Function, 6}};
    for (const KeypadBlock& block : blocks) {
        auto* grid = new QGridLayout;
        grid->setSpacing(1);
        for (int column = 0; column < block.Columns; ++column) grid->setColumnStretch(column, 1);
        const auto captions = KeypadCaptions(block.Group);
        for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
            QToolButton* button =
                KeypadButton(ToQString(captions[static_cast<std::size_t>(i)]), KeypadCaptionColour(block.Group), keypad);
            connect(button, &QToolButton::clicked, this, [this, block, i] { model_.ClickKeypad(block.Group, i); });
            grid->addWidget(button, i / block.Columns, i % block.Columns);
        }
        row->addLayout(grid, block.Columns);
    }
    return keypad;
}

QWidget* MainWindow::BuildMenuButtons() {
    auto* strip = new QWidget;
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    mnuConstants_ = new QMenu(this);
    mnuBIFunctions_ = new QMenu(this);
    mnuResultList_ = new QMenu(this);
    row->addWidget(FitToCaption(
        MenuButton(ToQString(kMoreConstantsButton.Caption), kMoreConstantsButton.ToolTip, mnuConstants_, false)));
    row->addWidget(FitToCaption(MenuButton(ToQString(kBuiltInFunctionsButton.Caption), kBuiltInFunctionsButton.ToolTip,
                                           mnuBIFunctions_, false)));
    auto* custom = new QToolButton(strip);
    custom->setText(ToQString(kCustomFunctionsButton.Caption));
    connect(custom, &QToolButton::clicked, this, [this] { model_.ClickCustomFunctions(); });
    row->addWidget(FitToCaption(custom));
    row->addWidget(FitToCaption(
        MenuButton(ToQString(kResultListButton.Caption), kResultListButton.ToolTip, mnuResultList_, false)));
    auto* frame = new QGroupBox(ToQString(kConstantsFrameCaption), strip);  // FrameConst
    auto* constants = new QHBoxLayout(frame);
    constants->setContentsMargins(2, 0, 2, 0);
    constants->setSpacing(1);
    const auto captions = KeypadCaptions(KeypadGroup::Constant);
    for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
        QToolButton* button = KeypadButton(ToQString(captions[static_cast<std::size_t>(i)]), -1, frame);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        connect(button, &QToolButton::clicked, this, [this, i] { model_.ClickKeypad(KeypadGroup::Constant, i); });
        constants->addWidget(button);
    }
    row->addWidget(frame);
    return strip;
}

QWidget* MainWindow::BuildStatePanel() {
    auto* strip = new QFrame;
    strip->setObjectName(QStringLiteral("pBoxState"));
    strip->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QHBoxLayout(strip);
    layout->setContentsMargins(2, 0, 2, 0);
    auto* logo = new QToolButton(strip);  // Image1
    logo->setIcon(AppIcon());
    logo->setText(ToQString(MainWindowModel::kTitle));
    logo->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    logo->setAutoRaise(true);
    NameByToolTip(logo, kLogoImage.ToolTip);
    connect(logo, &QToolButton::clicked, this, [this] { model_.ClickLogo(); });
    layout->addWidget(logo);
    layout->addStretch();
    return strip;
}

// The menus fill from the model each time they open, so they always show its items.
void MainWindow::BuildMenus() {
    const auto fillOnShow = [this](QMenu* menu, auto fill) { connect(menu, &QMenu::aboutToShow, this, fill); };
    fillOnShow(mnuResultList_, [this] {
        FillMenu(*mnuResultList_, model_.Results().Items(),
                 [this](int i) { model_.ChooseResultListItem(static_cast<std::size_t>(i)); });
    });
    fillOnShow(mnuClearOther_, [this] { FillMenu(*mnuClearOther_, model_.Menus().ClearOther, [this](int i) { model_.mnuCO(i); }); });
    fillOnShow(mnuInformation_, [this] {
        FillMenu(*mnuInformation_, model_.Menus().Information, [this](int i) { model_.ChooseInformation(i); });
    });
    mnuMain_ = new QMenu(this);
    fillOnShow(mnuMain_, [this] { FillMenu(*mnuMain_, model_.Menus().Main, [this](int i) { model_.ChooseMainMenu(i); }); });
    fillOnShow(mnuBIFunctions_, [this] {
        mnuBIFunctions_->clear();
        const CatalogueMenus& menus = model_.Menus();
        for (std::size_t g = 0; g < menus.FunctionGroups.size(); ++g) {
            QMenu* group = mnuBIFunctions_->addMenu(ToQString(menus.FunctionGroups[g].Caption));
            const int groupIndex = static_cast<int>(g);
            FillMenu(*group, menus.Functions[g], [this, groupIndex](int i) { model_.ChooseFunction(groupIndex, i); });
        }
    });
    fillOnShow(mnuConstants_, [this] {
        mnuConstants_->clear();
        const CatalogueMenus& menus = model_.Menus();
        for (std::size_t g = 0; g < menus.ConstantGroups.size(); ++g) {
            if (menus.ConstantGroups[g].IsSeparator()) {
                mnuConstants_->addSeparator();
                continue;
            }
            QMenu* group = mnuConstants_->addMenu(ToQString(menus.ConstantGroups[g].Caption));
            const int groupIndex = static_cast<int>(g);
            FillMenu(*group, menus.Constants[g], [this, groupIndex](int i) { model_.ChooseConstant(groupIndex, i); });
        }
    });
}

}  // namespace tessarondel
