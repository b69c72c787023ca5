#include "ui/widgets/applycolourscheme.h"

#include "settings/colourschemes.h"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace quenfor {

namespace {

QColor toColor(const RgbColour& c) {
    return QColor(c.red, c.green, c.blue);
}

} // namespace

bool applyColourScheme(QWidget* list, const QString& name) {
    const std::optional<ColourScheme> scheme = colourScheme(name);
    if (!list || !scheme)
        return false;
    QPalette palette = list->palette();
    // Both colour groups, so that the list keeps its scheme when the window loses the focus.
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Text, toColor(scheme->text));
        palette.setColor(group, QPalette::Base, toColor(scheme->background));
    }
    list->setPalette(palette);
    return true;
}

} // namespace quenfor
