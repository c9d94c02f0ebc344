#include "platform/text_table_model.h"

namespace tessarondel {

TextTableModel::TextTableModel(QStringList headers, RowCount rowCount, Cell cell, QObject* parent)
    : QAbstractTableModel(parent),
      headers_(std::move(headers)),
      sourceRowCount_(std::move(rowCount)),
      cell_(std::move(cell)),
      shownRows_(sourceRowCount_()) {}

int TextTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shownRows_; }

int TextTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headers_.size());
}

QVariant TextTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    return cell_(index.row(), index.column());
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= headers_.size()) {
        return {};
    }
    return headers_[section];
}

void TextTableModel::SyncAppended() {
    const int target = sourceRowCount_();
    if (target < shownRows_) return SyncAll();
    if (target == shownRows_) return;
    beginInsertRows({}, shownRows_, target - 1);
    shownRows_ = target;
    endInsertRows();
}

void TextTableModel::SyncAll() {
    if (shownRows_ > 0) {
        beginRemoveRows({}, 0, shownRows_ - 1);
        shownRows_ = 0;
        endRemoveRows();
    }
    SyncAppended();
}

void TextTableModel::SyncRow(int row) {
    if (row < 0 || row >= shownRows_) return;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

}  // namespace tessarondel
