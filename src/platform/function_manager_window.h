#pragma once

#include <QWidget>
#include <array>
#include <map>

#include "customfunctions/function_manager_model.h"

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;
class QTreeView;

namespace tessarondel {

class TextTableModel;

// frmCustomFunction over FunctionManagerModel: the list of functions, the
// buttons, and the details panel with the four edit boxes.
class FunctionManagerWindow final : public QWidget {
    Q_OBJECT
public:
    explicit FunctionManagerWindow(FunctionManagerModel& model, QWidget* parent = nullptr);

    void Apply(FunctionManagerChange change);
    QTreeView* lvCustomFunction() const { return list_; }
    TextTableModel* Rows() const { return rows_; }
    QPushButton* Button(ManagerButton button) const { return buttons_.at(button); }
    QWidget* Field(FunctionField field) const { return fields_[static_cast<std::size_t>(field)]; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* BuildDetails();
    void FitHeights(int list, int details);
    void DrawFields();
    void DrawControls();
    void DrawHeight();
    void DrawSelection();

    FunctionManagerModel& model_;
    QTreeView* list_ = nullptr;
    TextTableModel* rows_ = nullptr;
    std::map<ManagerButton, QPushButton*> buttons_;
    std::array<QToolButton*, 2> detailsButtons_{};
    QWidget* details_ = nullptr;  // pBox
    QLineEdit* txtName_ = nullptr;
    QLineEdit* txtPara_ = nullptr;
    QPlainTextEdit* txtExpression_ = nullptr;
    QPlainTextEdit* txtDes_ = nullptr;
    std::array<QWidget*, 4> fields_{};
};

}  // namespace tessarondel
