#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QStringList>

namespace quenfor {

// The hits of a search as list rows "number: line", read from the searched lines on demand, so a
// term found in a million lines costs one int per hit and nothing more.
class SearchHitModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // `source` must stay alive while the hits are shown (the document's or the dialog's lines).
    // A line is shown with its index plus `numberBase`: 0 for document lines, whose index the main
    // window shows as their number, 1 for lines of a file.
    void setHits(const QStringList* source, QList<int> lines, int numberBase);
    void clear();

    int lineAt(int row) const { return m_lines.at(row); }
    // The row of a document line, -1 when it is no hit.
    int rowOf(int line) const;
    const QList<int>& lines() const { return m_lines; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    const QStringList* m_source = nullptr;
    QList<int> m_lines; // ascending
    int m_numberBase = 0;
};

} // namespace quenfor
