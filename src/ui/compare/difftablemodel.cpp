#include "ui/compare/difftablemodel.h"

#include "compare/comparetexts.h"
#include "lint/linttexts.h"

#include <QColor>

#include <limits>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString lineText(int line) {
    return line > 0 ? QString::number(line) : QString();
}

QString shownValue(QStringView value) {
    return shownText(value, std::numeric_limits<qsizetype>::max());
}

} // namespace

void DiffTableModel::setDiff(std::vector<DiffEntry> diff) {
    beginResetModel();
    m_diff = std::move(diff);
    endResetModel();
}

int DiffTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_diff.size());
}

int DiffTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DiffTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const DiffEntry& d = m_diff[size_t(index.row())];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        switch (index.column()) {
        case ChangeColumn:
            return changeText(d.change);
        case NameColumn:
            return shownValue(settingTitle(d.kind, d.name));
        case ValueAColumn:
            return shownValue(d.oldValue);
        case ValueBColumn:
            return shownValue(d.newValue);
        case LineAColumn:
            return lineText(d.lineA);
        case LineBColumn:
            return lineText(d.lineB);
        default:
            return {};
        }
    }
    if (role == Qt::TextAlignmentRole && (index.column() == LineAColumn || index.column() == LineBColumn))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    // The side that lacks the setting stays pale, so the eye finds which file holds it.
    if (role == Qt::BackgroundRole) {
        if ((d.change == DiffChange::Added && index.column() == ValueAColumn) ||
            (d.change == DiffChange::Removed && index.column() == ValueBColumn))
            return QColor(0xee, 0xee, 0xee);
    }
    return {};
}

QVariant DiffTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case ChangeColumn:
        return tr("Änderung");
    case NameColumn:
        return tr("Option / Mapkey");
    case ValueAColumn:
        return tr("Wert in A");
    case ValueBColumn:
        return tr("Wert in B");
    case LineAColumn:
        return tr("Zeile A");
    case LineBColumn:
        return tr("Zeile B");
    default:
        return {};
    }
}

} // namespace quenfor
