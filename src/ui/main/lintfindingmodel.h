#pragma once

#include "lint/lintfinding.h"

#include <QAbstractTableModel>
#include <QList>

namespace quenfor {

// The findings of a check as a table: line number and message.
class LintFindingModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setFindings(QList<LintFinding> findings);
    const LintFinding& findingAt(int row) const { return m_findings.at(row); }
    const QList<LintFinding>& findings() const { return m_findings; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QList<LintFinding> m_findings;
};

} // namespace quenfor
