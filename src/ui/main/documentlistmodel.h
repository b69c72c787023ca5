#pragma once

#include "compare/linemarks.h"

#include <QAbstractListModel>
#include <QHash>
#include <QIcon>
#include <QPointer>

namespace quenfor {

class ConfigDocument;

// Characters of a line the list shows. Painting lays out the whole shown text, some bytes per
// character on every paint: a mapkey line of hundreds of megabytes would take gigabytes. Nobody
// reads that far to the right, so the list shows the beginning; editing gets the whole line.
inline constexpr qsizetype kListShownLength = 10000;

// Shows the document's lines in a list view without copying them: rows are read from the
// document on demand and the model follows the document's change signals.
class DocumentListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit DocumentListModel(ConfigDocument* document, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // Lines that have no effect beside the chosen config.sup: an icon and the reason as tooltip.
    // While marks are shown every line has room for the icon, so the text does not jump.
    void setLineMarks(QHash<int, LineMark> marks);
    void clearLineMarks();
    bool showsLineMarks() const { return m_showMarks; }
    const QHash<int, LineMark>& lineMarks() const { return m_marks; }

private:
    QPointer<ConfigDocument> m_document;
    QHash<int, LineMark> m_marks;
    bool m_showMarks = false;
    mutable QIcon m_lockedIcon;
    mutable QIcon m_overriddenIcon;
    mutable QIcon m_noIcon;
};

} // namespace quenfor
