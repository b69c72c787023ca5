#include "ui/knowledge/missingpathcolour.h"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace quenfor {

void showPathAsMissing(QWidget* entry, bool missing) {
    if (!missing) {
        // An empty palette drops the red and lets the entry follow the window's colours again.
        entry->setPalette(QPalette());
        return;
    }
    QPalette palette = entry->palette();
    palette.setColor(QPalette::Text, QColor(255, 0, 0));
    entry->setPalette(palette);
}

} // namespace quenfor
