#pragma once

#include <QString>

class QAbstractItemView;

namespace quenfor {

// Gives the list the text and background colours of the named scheme. An unknown name changes
// nothing and returns false.
bool applyColourScheme(QAbstractItemView* list, const QString& name);

} // namespace quenfor
