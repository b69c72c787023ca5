#pragma once

#include <QString>

class QAbstractItemModel;
class QListView;
class QWidget;

namespace quenfor {

// The read-only list both mapkey windows show: mapkey text in the fixed font, laid out in
// batches so that tens of thousands of entries open without a pause, each entry as wide as it is.
QListView* makeMapkeyListView(const QString& objectName, QAbstractItemModel* model, QWidget* parent);

} // namespace quenfor
