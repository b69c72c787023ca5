#pragma once

#include <QAbstractListModel>
#include <QPointer>

namespace quenfor {

class ConfigDocument;

// Shows the document's lines in a list view without copying them: rows are read from the
// document on demand and the model follows the document's change signals.
class DocumentListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit DocumentListModel(ConfigDocument* document, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QPointer<ConfigDocument> m_document;
};

} // namespace quenfor
