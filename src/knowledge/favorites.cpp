#include "knowledge/favorites.h"

#include "common/fileexists.h"
#include "document/linekind.h"
#include "knowledge/explanation.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// "browser_favorite" and its blank take 17 characters; the path starts behind them.
constexpr qsizetype kPathStart = 17;
// A single character behind the last blank is taken for a typing slip, not for a name.
constexpr qsizetype kShortestName = 2;

} // namespace

FavoriteParts takeFavoriteApart(const QString& entryLine) {
    FavoriteParts parts;
    parts.entryLine = entryLine;
    if (!isFavoriteLine(entryLine))
        return parts;
    parts.isFavorite = true;
    if (parts.entryLine.endsWith(u' '))
        parts.entryLine.chop(1);

    const QString& line = parts.entryLine;
    const qsizetype lastBlank = line.lastIndexOf(u' ');
    if (lastBlank >= kPathStart) {
        parts.path = line.mid(kPathStart, lastBlank - kPathStart);
        const qsizetype nameLength = line.size() - lastBlank - 1;
        if (nameLength >= kShortestName)
            parts.name = line.mid(lastBlank + 1);
    } else {
        parts.path = line.mid(kPathStart);
    }
    parts.pathIsFolder = folderExists(parts.path);
    return parts;
}

QString favoriteLine(const QString& path, const QString& name) {
    return u"browser_favorite "_s + path + u' ' + name;
}

QString favoriteHelpText() {
    return fixedExplanation(Explanation::Kind::Favorite);
}

} // namespace quenfor
