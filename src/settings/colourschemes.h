#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

// A colour without Qt Gui, so that the schemes stay plain logic.
struct RgbColour {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const RgbColour&, const RgbColour&) = default;
};

// Colour values of the old settings are written blue-green-red: 0xFFFF80 is red 0x80, green and
// blue 0xFF.
RgbColour rgbFromBgr(quint32 bgr);

// A colour scheme of the main list. The background is also the colour of the scheme's swatch.
struct ColourScheme {
    QString name;
    RgbColour text;
    RgbColour background;
};

// "schwarz", "weiss", "blau" in the order the swatches stand.
QStringList colourSchemeNames();

// The scheme of that name; none for any other name, so that a stray stored value leaves the list
// in its own colours.
std::optional<ColourScheme> colourScheme(const QString& name);

} // namespace quenfor
