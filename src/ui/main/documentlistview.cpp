#include "ui/main/documentlistview.h"

#include "document/configdocument.h"
#include "ui/main/documentlistmodel.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QMouseEvent>

namespace quenfor {

DocumentListView::DocumentListView(ConfigDocument* document, QWidget* parent)
    : QListView(parent), m_document(document) {
    setObjectName(QStringLiteral("List1"));
    setModel(new DocumentListModel(document, this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true); // a million rows lay out in no time
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setEditTriggers(QAbstractItemView::NoEditTriggers);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &DocumentListView::takeSelectionFromView);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { emit lineClicked(index.row()); });
    connect(document, &ConfigDocument::selectionChanged, this, &DocumentListView::showDocumentSelection);
    connect(document, &ConfigDocument::resetDone, this, &DocumentListView::showDocumentSelection);
    connect(document, &ConfigDocument::scrollRequested, this, [this](int row) { scrollTo(model()->index(row, 0)); });
    connect(document, &ConfigDocument::markedChanged, this, [this](int row) {
        if (m_syncing)
            return;
        m_syncing = true;
        if (row >= 0)
            selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
        m_syncing = false;
    });
}

void DocumentListView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        emit rightClicked(event->globalPosition().toPoint());
        return; // the right button opens the context menu and leaves the selection alone
    }
    emit leftClicked();
    QListView::mousePressEvent(event);
}

// Moving with the keys makes another line the current one, just as a click does.
void DocumentListView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    const QModelIndex after = currentIndex();
    if (after.isValid() && after != before)
        emit lineClicked(after.row());
}

void DocumentListView::takeSelectionFromView(const QItemSelection& selected, const QItemSelection& deselected) {
    if (m_syncing)
        return;
    m_syncing = true;
    for (const QItemSelectionRange& range : deselected)
        m_document->setRangeSelected(range.top(), range.bottom(), false);
    for (const QItemSelectionRange& range : selected)
        m_document->setRangeSelected(range.top(), range.bottom(), true);
    m_syncing = false;
}

void DocumentListView::showDocumentSelection() {
    if (m_syncing)
        return;
    m_syncing = true;
    QItemSelection selection;
    const QList<int> rows = m_document->selectedRows();
    for (qsizetype i = 0; i < rows.size();) {
        qsizetype j = i;
        while (j + 1 < rows.size() && rows[j + 1] == rows[j] + 1)
            ++j;
        selection.select(model()->index(rows[i], 0), model()->index(rows[j], 0));
        i = j + 1;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_syncing = false;
}

} // namespace quenfor
