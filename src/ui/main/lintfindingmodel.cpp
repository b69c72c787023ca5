#include "ui/main/lintfindingmodel.h"

#include "lint/linttexts.h"

namespace quenfor {

void LintFindingModel::setFindings(QList<LintFinding> findings) {
    beginResetModel();
    m_findings = std::move(findings);
    endResetModel();
}

int LintFindingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_findings.size());
}

int LintFindingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant LintFindingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_findings.size())
        return {};
    const LintFinding& f = m_findings.at(index.row());
    if (role == Qt::DisplayRole)
        return index.column() == 0 ? QVariant(f.line) : QVariant(f.message);
    if (role == Qt::TextAlignmentRole && index.column() == 0)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && index.column() == 1)
        return f.message;
    return {};
}

QVariant LintFindingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return QString::fromUtf16(section == 0 ? kLintLineColumn : kLintFindingColumn);
}

} // namespace quenfor
