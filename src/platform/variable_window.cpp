#include "platform/variable_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeView>
#include <QVBoxLayout>

#include "platform/app_icon.h"
#include "platform/qt_text.h"
#include "platform/report_list.h"
#include "platform/text_table_model.h"
#include "platform/twips.h"
#include "shell/shell_captions.h"

namespace tessarondel {

VariableWindow::VariableWindow(VariableWindowModel& model, QWidget* parent) : QWidget(parent, Qt::Window), model_(model) {
    setWindowTitle(ToQString(VariableWindowModel::kTitle));
    setWindowIcon(AppIcon());
    const auto& rows = model_.Rows();
    rows_ = new TextTableModel(
        {ToQString(kVariableListColumns[0]), ToQString(kVariableListColumns[1])},
        [&rows] { return static_cast<int>(rows.size()); },
        [&rows](int row, int column) {
            const VariableRecord& record = rows[static_cast<std::size_t>(row)];
            return ToQString(column == 0 ? record.Name : record.Value);
        },
        this);
    lvVar_ = MakeReportList(rows_, u"Variable List", VariableWindowModel::kListToolTip, this);
    connect(lvVar_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
        model_.SelectRow(current.isValid() ? std::optional<std::size_t>(current.row()) : std::nullopt);
    });
    connect(lvVar_, &QTreeView::doubleClicked, this, [this] { model_.DoubleClickList(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(lvVar_, 1);
    auto* buttons = new QHBoxLayout;  // pBox
    for (int i = 0; i < 3; ++i) {
        auto* button = new QPushButton(ToQString(VariableWindowModel::kButtons[i].Caption), this);
        button->setToolTip(ToQString(VariableWindowModel::kButtons[i].ToolTip));
        connect(button, &QPushButton::clicked, this, [this, i] { model_.cmdBtn(i); });
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);

    const TwipScale scale = TwipScale::For(this);
    setFixedWidth(scale.ToPixels(VariableWindowModel::kWidth - FrameWidthTwips));
    setMinimumHeight(scale.ToPixels(VariableWindowModel::MinimumHeight - FrameHeightTwips));
    resize(width(), minimumHeight());
}

void VariableWindow::Apply(VariableWindowChange change) {
    switch (change) {
        case VariableWindowChange::Rows: rows_->SyncAll(); [[fallthrough]];
        case VariableWindowChange::Selection: {
            const QSignalBlocker blocker(lvVar_->selectionModel());
            const auto row = model_.SelectedRow();
            if (row) {
                lvVar_->setCurrentIndex(rows_->index(static_cast<int>(*row), 0));
            } else {
                lvVar_->clearSelection();
            }
            break;
        }
        case VariableWindowChange::Geometry: {
            const int height = TwipScale::For(this).ToPixels(model_.Geometry().Height - FrameHeightTwips);
            if (height > this->height()) resize(width(), height);
            break;
        }
    }
}

void VariableWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    model_.CloseVariableList();
}

void VariableWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    model_.Resize(static_cast<std::int32_t>(TwipScale::For(this).ToTwips(height())) + FrameHeightTwips);
}

}  // namespace tessarondel
