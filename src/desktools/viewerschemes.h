#pragma once

#include "settings/colourschemes.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

// A colour of the picture viewer: fixed, or one of the system's colours, which only the window
// knows.
struct ViewerColour {
    enum class Source { Fixed, SystemWindow, SystemHighlight, SystemButtonFace };
    Source source = Source::Fixed;
    RgbColour rgb;

    friend bool operator==(const ViewerColour&, const ViewerColour&) = default;
};

// The colours of the window, the console line and the information box, named by the word the
// viewer stores under "Farbe".
struct ViewerScheme {
    QString word;
    ViewerColour background;
    ViewerColour text;
};

// "standard", "schwarz", "weiss", "gelb", "rosa", "blau", "gruen".
QStringList viewerSchemeWords();
// The scheme of a stored word; nothing for any other word.
std::optional<ViewerScheme> viewerScheme(const QString& word);
// "standard": the system's button-face colour with black text.
ViewerScheme standardViewerScheme();

} // namespace quenfor
