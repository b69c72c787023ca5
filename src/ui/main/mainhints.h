#pragma once

#include <QString>

class QWidget;

namespace quenfor {

class StatusHints;

// The hint of a control of the main window, by its object name; empty when it has none.
QString mainWindowHint(const QString& objectName);

// Registers the hint of every control below `root` that has one.
void registerMainWindowHints(QWidget* root, StatusHints& hints);

} // namespace quenfor
