#include "platform/report_list.h"

#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeView>

#include "platform/qt_text.h"

namespace tessarondel {
namespace {

class ReportListDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip) return QStyledItemDelegate::helpEvent(event, view, option, index);
        const bool cutOff = index.isValid() && sizeHint(option, index).width() > option.rect.width();
        QToolTip::showText(event->globalPos(), cutOff ? index.data().toString() : view->toolTip(), view);
        return true;
    }
};

}  // namespace

QTreeView* MakeReportList(QAbstractItemModel* rows, const char16_t* accessibleName, const char16_t* toolTip,
                          QWidget* parent) {
    auto* list = new QTreeView(parent);
    list->setModel(rows);
    list->setItemDelegate(new ReportListDelegate(list));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setAccessibleName(ToQString(accessibleName));
    list->setToolTip(ToQString(toolTip));
    return list;
}

}  // namespace tessarondel
