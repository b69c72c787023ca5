#pragma once

#include <QString>

class QWidget;

namespace quenfor {

// Gives the list (or a text box) the text and background colours of the named scheme. An unknown
// name changes nothing and returns false.
bool applyColourScheme(QWidget* list, const QString& name);

} // namespace quenfor
