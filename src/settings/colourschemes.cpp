#include "settings/colourschemes.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The fixed colours of the schemes as they were stored: light cyan and dark blue.
constexpr quint32 kLightCyanBgr = 0xFFFF80;
constexpr quint32 kDarkBlueBgr = 0x800000;

// Swatch colours: the light text needs a dark ground, the dark blue text a white one.
constexpr RgbColour kBlack{0x00, 0x00, 0x00};
constexpr RgbColour kWhite{0xFF, 0xFF, 0xFF};
constexpr RgbColour kNavy{0x00, 0x00, 0x60};

const std::array<ColourScheme, 3>& schemes() {
    static const std::array<ColourScheme, 3> table{{
        {u"schwarz"_s, rgbFromBgr(kLightCyanBgr), kBlack},
        {u"weiss"_s, rgbFromBgr(kDarkBlueBgr), kWhite},
        {u"blau"_s, rgbFromBgr(kLightCyanBgr), kNavy},
    }};
    return table;
}

} // namespace

RgbColour rgbFromBgr(quint32 bgr) {
    return {static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF), static_cast<int>((bgr >> 16) & 0xFF)};
}

QStringList colourSchemeNames() {
    QStringList names;
    for (const ColourScheme& scheme : schemes())
        names.append(scheme.name);
    return names;
}

std::optional<ColourScheme> colourScheme(const QString& name) {
    for (const ColourScheme& scheme : schemes()) {
        if (scheme.name == name)
            return scheme;
    }
    return std::nullopt;
}

} // namespace quenfor
