#pragma once

#include <QWidget>

#include "shell/variable_window_model.h"

class QTreeView;

namespace tessarondel {

class TextTableModel;

// frmVar: the variable list with Insert, Clear and Close over VariableWindowModel.
class VariableWindow final : public QWidget {
    Q_OBJECT
public:
    explicit VariableWindow(VariableWindowModel& model, QWidget* parent = nullptr);

    void Apply(VariableWindowChange change);
    QTreeView* lvVar() const { return lvVar_; }
    TextTableModel* Rows() const { return rows_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    VariableWindowModel& model_;
    QTreeView* lvVar_ = nullptr;
    TextTableModel* rows_ = nullptr;
};

}  // namespace tessarondel
