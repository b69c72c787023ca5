#include "ui/main/documentlistmodel.h"

#include "document/configdocument.h"

namespace quenfor {

DocumentListModel::DocumentListModel(ConfigDocument* document, QObject* parent)
    : QAbstractListModel(parent), m_document(document) {
    connect(document, &ConfigDocument::aboutToBeReset, this, [this] { beginResetModel(); });
    connect(document, &ConfigDocument::resetDone, this, [this] { endResetModel(); });
    connect(document, &ConfigDocument::aboutToInsertLines, this,
            [this](int first, int last) { beginInsertRows({}, first, last); });
    connect(document, &ConfigDocument::linesInserted, this, [this] { endInsertRows(); });
    connect(document, &ConfigDocument::aboutToRemoveLines, this,
            [this](int first, int last) { beginRemoveRows({}, first, last); });
    connect(document, &ConfigDocument::linesRemoved, this, [this] { endRemoveRows(); });
    connect(document, &ConfigDocument::linesChanged, this,
            [this](int first, int last) { emit dataChanged(index(first), index(last), {Qt::DisplayRole}); });
}

int DocumentListModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() || !m_document)
        return 0;
    return m_document->count();
}

QVariant DocumentListModel::data(const QModelIndex& index, int role) const {
    if (!m_document || !index.isValid() || index.row() >= m_document->count())
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return m_document->line(index.row());
    return {};
}

} // namespace quenfor
