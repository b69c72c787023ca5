#pragma once

#include <QString>

namespace quenfor {

// A browser_favorite line taken apart: "browser_favorite", a blank, the folder (which may hold
// blanks itself), a blank, the name the CAD system's file browser shows.
struct FavoriteParts {
    bool isFavorite = false;   // the line starts with "browser_favorite" or "BROWSER_FAVORITE"
    QString entryLine;         // the line as it is afterwards: one trailing blank removed
    QString path;              // from the 18th character up to the last blank
    QString name;              // what follows the last blank; empty unless two characters or more
    bool pathIsFolder = false; // the path names an existing folder
};

// Takes an entry line apart. A line that is no favourite line comes back unchanged with
// isFavorite false and no parts. Without a blank behind the path the whole rest is the path.
FavoriteParts takeFavoriteApart(const QString& entryLine);

// The line the constructor appends; always in lower case and without any check of its parts.
QString favoriteLine(const QString& path, const QString& name);

// What the help label shows in the explanation panel: the explanation of a favourite line.
QString favoriteHelpText();

// The colour of a path that is no existing folder, written blue-green-red: red 248, green 15.
inline constexpr int kMissingFolderColour = 4088;

} // namespace quenfor
