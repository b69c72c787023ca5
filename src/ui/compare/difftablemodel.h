#pragma once

#include "compare/configdiff.h"

#include <QAbstractTableModel>

namespace quenfor {

// The differences of two files as a table: change, name, value in A beside value in B, lines.
class DiffTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { ChangeColumn, NameColumn, ValueAColumn, ValueBColumn, LineAColumn, LineBColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setDiff(std::vector<DiffEntry> diff);
    const std::vector<DiffEntry>& diff() const { return m_diff; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::vector<DiffEntry> m_diff;
};

} // namespace quenfor
