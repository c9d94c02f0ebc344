#pragma once

class QAbstractItemModel;
class QTreeView;
class QWidget;

namespace tessarondel {

// A list that reads like the report-style lists of the design: rows with
// columns, no tree, one selected row, no editing. Over a row it shows the
// list's own tool tip, except over a cell whose text is cut off, which shows
// that text whole.
QTreeView* MakeReportList(QAbstractItemModel* rows, const char16_t* accessibleName, const char16_t* toolTip,
                          QWidget* parent);

}  // namespace tessarondel
