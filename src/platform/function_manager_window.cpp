#include "platform/function_manager_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/app_icon.h"
#include "platform/qt_text.h"
#include "platform/report_list.h"
#include "platform/text_table_model.h"
#include "platform/twips.h"
#include "platform/widget_helpers.h"

namespace tessarondel {

namespace {

// The documents keep CR LF between lines; the edit boxes work with LF.
QString ForBox(const std::u16string& text) { return ToQString(text).replace(QStringLiteral("\r\n"), "\n"); }
std::u16string FromBox(QString text) { return ToU16(text.replace('\n', QStringLiteral("\r\n"))); }

QPlainTextEdit* MultiLineBox(QWidget* parent) {
    auto* box = new QPlainTextEdit(parent);
    box->setTabChangesFocus(true);
    return box;
}

}  // namespace

FunctionManagerWindow::FunctionManagerWindow(FunctionManagerModel& model, QWidget* parent)
    : QWidget(parent, Qt::Window), model_(model) {
    setWindowTitle(ToQString(FunctionManagerModel::kTitle));
    setWindowIcon(AppIcon());
    const auto& rows = model_.Rows();
    rows_ = new TextTableModel(
        {ToQString(FunctionManagerModel::kColumns[0]), ToQString(FunctionManagerModel::kColumns[1])},
        [&rows] { return static_cast<int>(rows.size()); },
        [&rows](int row, int column) {
            const FunctionListRow& r = rows[static_cast<std::size_t>(row)];
            return ToQString(column == 0 ? r.Name : r.Description);
        },
        this);
    list_ = MakeReportList(rows_, u"Custom Functions", u"", this);
    // Rows count from 1 in the model.
    connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
        model_.SelectRow(current.isValid() ? current.row() + 1 : 0);
    });
    connect(list_, &QTreeView::clicked, this, [this] { model_.ClickList(); });
    connect(list_, &QTreeView::doubleClicked, this, [this] { model_.DoubleClickList(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    // The window may be dragged below the details' room; the snap decides its height.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    auto* top = new QHBoxLayout;
    top->addWidget(list_, 1);
    auto* side = new QVBoxLayout;
    for (ManagerButton button : {ManagerButton::New, ManagerButton::Edit, ManagerButton::Delete, ManagerButton::Insert,
                                 ManagerButton::Close}) {
        const auto text = FunctionManagerModel::Text(button);
        auto* push = new QPushButton(ToQString(text.Caption), this);
        push->setToolTip(ToQString(text.ToolTip));
        buttons_[button] = push;
        side->addWidget(push);
    }
    for (int i : {1, 0}) {
        detailsButtons_[i] = MakePictureButton(i == 1 ? QStringLiteral("▼") : QStringLiteral("▲"),
                                               FunctionManagerModel::kDetailsToolTips[i], this);
        connect(detailsButtons_[i], &QToolButton::clicked, this, [this, i] { model_.cmdLedBtn(i); });
        side->addWidget(detailsButtons_[i], 0, Qt::AlignRight);
    }
    side->addStretch();
    top->addLayout(side);
    layout->addLayout(top, 1);
    layout->addWidget(BuildDetails(), 2);

    connect(buttons_[ManagerButton::New], &QPushButton::clicked, this, [this] { model_.cmdNew(); });
    connect(buttons_[ManagerButton::Edit], &QPushButton::clicked, this, [this] { model_.cmdEdit(); });
    connect(buttons_[ManagerButton::Delete], &QPushButton::clicked, this, [this] { model_.cmdDelete(); });
    connect(buttons_[ManagerButton::Insert], &QPushButton::clicked, this, [this] { model_.cmdInsert(); });
    connect(buttons_[ManagerButton::Close], &QPushButton::clicked, this, [this] { model_.cmdClose(); });
    connect(buttons_[ManagerButton::Ok], &QPushButton::clicked, this, [this] { model_.cmdOK(); });
    connect(buttons_[ManagerButton::Cancel], &QPushButton::clicked, this, [this] { model_.cmdCancel(); });

    setFixedWidth(TwipScale::For(this).ToPixels(FunctionManagerModel::kWidth - FrameWidthTwips));
    DrawFields();
    DrawControls();
    DrawHeight();  // the needs are measured with one details button on show and the details hidden
    FitHeights(layout->contentsMargins().top() + layout->contentsMargins().bottom() + top->minimumSize().height(),
               layout->spacing() + details_->minimumSizeHint().height());
    DrawHeight();
}

// Tells the model the heights the contents need, in whole pixels and never
// below the design's, so that a height drawn in pixels reads back unchanged.
void FunctionManagerWindow::FitHeights(int list, int details) {
    const TwipScale scale = TwipScale::For(this);
    const auto fit = [&scale](std::int32_t design, int needed) {
        const int pixels = std::max(scale.ToPixels(design - FrameHeightTwips), needed);
        return static_cast<std::int32_t>(scale.ToTwips(pixels)) + FrameHeightTwips;
    };
    const std::int32_t collapsed = fit(FunctionManagerModel::kCollapsedHeight, list);
    const std::int32_t expanded =
        fit(FunctionManagerModel::kExpandedHeight, scale.ToPixels(collapsed - FrameHeightTwips) + details);
    model_.FitHeights(collapsed, expanded);
    setMinimumHeight(scale.ToPixels(model_.CollapsedHeight() - FrameHeightTwips));
}

QWidget* FunctionManagerWindow::BuildDetails() {
    details_ = new QWidget(this);
    auto* grid = new QGridLayout(details_);
    grid->setContentsMargins(0, 0, 0, 0);
    txtName_ = new QLineEdit(details_);
    txtPara_ = new QLineEdit(details_);
    txtExpression_ = MultiLineBox(details_);
    txtDes_ = MultiLineBox(details_);
    fields_ = {txtName_, txtPara_, txtExpression_, txtDes_};
    for (int i = 0; i < 4; ++i) {
        auto* label = new QLabel(ToQString(FunctionManagerModel::kFieldLabels[i]), details_);
        label->setBuddy(fields_[static_cast<std::size_t>(i)]);
        label->setWordWrap(true);
        grid->addWidget(label, i * 2, 0, 1, 2);
        grid->addWidget(fields_[static_cast<std::size_t>(i)], i * 2 + 1, 0, 1, 2);
    }
    connect(txtName_, &QLineEdit::textEdited, this,
            [this](const QString& text) { model_.SetFieldText(FunctionField::Name, ToU16(text)); });
    connect(txtPara_, &QLineEdit::textEdited, this,
            [this](const QString& text) { model_.SetFieldText(FunctionField::Parameters, ToU16(text)); });
    connect(txtExpression_, &QPlainTextEdit::textChanged, this, [this] {
        model_.SetFieldText(FunctionField::Expression, FromBox(txtExpression_->toPlainText()));
    });
    connect(txtDes_, &QPlainTextEdit::textChanged, this,
            [this] { model_.SetFieldText(FunctionField::Description, FromBox(txtDes_->toPlainText())); });
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (ManagerButton button : {ManagerButton::Ok, ManagerButton::Cancel}) {
        buttons_[button] = new QPushButton(ToQString(FunctionManagerModel::Text(button).Caption), details_);
        row->addWidget(buttons_[button]);
    }
    grid->addLayout(row, 8, 0, 1, 2);
    return details_;
}

void FunctionManagerWindow::Apply(FunctionManagerChange change) {
    switch (change) {
        case FunctionManagerChange::Rows:
            rows_->SyncAll();
            DrawSelection();
            break;
        case FunctionManagerChange::Selection: DrawSelection(); break;
        case FunctionManagerChange::Fields: DrawFields(); break;
        case FunctionManagerChange::Controls: DrawControls(); break;
        case FunctionManagerChange::Height: DrawHeight(); break;
        case FunctionManagerChange::Menu: break;  // the function menu is not offered in this window
    }
}

void FunctionManagerWindow::DrawSelection() {
    const QSignalBlocker blocker(list_->selectionModel());
    const int row = model_.SelectedRow();
    if (row >= 1) {
        list_->setCurrentIndex(rows_->index(row - 1, 0));
    } else {
        list_->clearSelection();
    }
}

void FunctionManagerWindow::DrawFields() {
    const QSignalBlocker name(txtName_), para(txtPara_), expression(txtExpression_), description(txtDes_);
    txtName_->setText(ToQString(model_.FieldText(FunctionField::Name)));
    txtPara_->setText(ToQString(model_.FieldText(FunctionField::Parameters)));
    txtExpression_->setPlainText(ForBox(model_.FieldText(FunctionField::Expression)));
    txtDes_->setPlainText(ForBox(model_.FieldText(FunctionField::Description)));
}

void FunctionManagerWindow::DrawControls() {
    for (const auto& [button, push] : buttons_) push->setEnabled(model_.ButtonEnabled(button));
    txtName_->setReadOnly(model_.FieldLocked(FunctionField::Name));
    txtPara_->setReadOnly(model_.FieldLocked(FunctionField::Parameters));
    txtExpression_->setReadOnly(model_.FieldLocked(FunctionField::Expression));
    txtDes_->setReadOnly(model_.FieldLocked(FunctionField::Description));
}

void FunctionManagerWindow::DrawHeight() {
    for (int i = 0; i < 2; ++i) detailsButtons_[i]->setVisible(model_.DetailsButtonVisible(i));
    details_->setVisible(model_.DetailsShown());
    resize(width(), TwipScale::For(this).ToPixels(model_.Height() - FrameHeightTwips));
}

void FunctionManagerWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    model_.Resize(static_cast<std::int32_t>(TwipScale::For(this).ToTwips(height())) + FrameHeightTwips);
}

void FunctionManagerWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    model_.cmdClose();
}

}  // namespace tessarondel
