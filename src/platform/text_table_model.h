#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

namespace tessarondel {

// A read-only table over rows that live in a shell model. It never resets:
// appended rows are announced as inserted, a cleared list as removed, so long
// histories stay cheap to grow.
class TextTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    using RowCount = std::function<int()>;
    using Cell = std::function<QString(int row, int column)>;

    TextTableModel(QStringList headers, RowCount rowCount, Cell cell, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // Brings the shown rows in line with the source after rows were appended.
    void SyncAppended();
    // After the source was cleared, refilled or edited: remove all, insert all.
    void SyncAll();
    // Cells of one row changed in place.
    void SyncRow(int row);

private:
    QStringList headers_;
    RowCount sourceRowCount_;
    Cell cell_;
    int shownRows_ = 0;
};

}  // namespace tessarondel
