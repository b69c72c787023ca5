#include "desktools/viewerschemes.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

using Source = ViewerColour::Source;

constexpr ViewerColour fixed(int red, int green, int blue) {
    return {Source::Fixed, {red, green, blue}};
}

constexpr ViewerColour system(Source source) {
    return {source, {}};
}

const std::array<ViewerScheme, 7>& schemes() {
    static const std::array<ViewerScheme, 7> table{{
        {u"standard"_s, system(Source::SystemButtonFace), fixed(0, 0, 0)},
        {u"schwarz"_s, fixed(0, 0, 0), fixed(128, 255, 128)},
        {u"weiss"_s, system(Source::SystemWindow), fixed(0, 0, 0)},
        {u"gelb"_s, fixed(255, 255, 192), fixed(0, 0, 0)},
        {u"rosa"_s, fixed(255, 192, 192), fixed(0, 0, 0)},
        {u"blau"_s, fixed(192, 255, 255), system(Source::SystemHighlight)},
        {u"gruen"_s, fixed(192, 255, 192), system(Source::SystemHighlight)},
    }};
    return table;
}

} // namespace

QStringList viewerSchemeWords() {
    QStringList words;
    for (const ViewerScheme& scheme : schemes())
        words.append(scheme.word);
    return words;
}

std::optional<ViewerScheme> viewerScheme(const QString& word) {
    for (const ViewerScheme& scheme : schemes()) {
        if (scheme.word == word)
            return scheme;
    }
    return std::nullopt;
}

ViewerScheme standardViewerScheme() {
    return schemes().front();
}

} // namespace quenfor
