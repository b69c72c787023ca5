#include "ui/knowledge/mapkeylistview.h"

#include <QFontDatabase>
#include <QListView>

namespace quenfor {

QListView* makeMapkeyListView(const QString& objectName, QAbstractItemModel* model, QWidget* parent) {
    auto* view = new QListView(parent);
    view->setObjectName(objectName);
    view->setModel(model);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Uniform item sizes would take every width from the first entry and cut longer lines off.
    view->setLayoutMode(QListView::Batched);
    view->setBatchSize(2000);
    return view;
}

} // namespace quenfor
