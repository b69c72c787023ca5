#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// What a line of a configuration file is, told by how it starts. Every test is case-sensitive
// and looks at the raw line, without trimming.
enum class LineKind {
    Mapkey,       // first six characters "mapkey"
    Continuation, // "mapkey(continued) " — also starts with "mapkey", so it is tested first
    Comment,      // first character "!"
    Favorite,     // "browser_favorite" or "BROWSER_FAVORITE"
    Option,       // any other line that is not blank
    Blank,        // nothing but blanks
};

LineKind classifyLine(QStringView line);

// The word the command-line tool prints for a kind.
QString lineKindName(LineKind kind);

// Prefix tests shared by the tools; each is exact and case-sensitive.
bool startsWithMapkey(QStringView line);
bool isContinuationLine(QStringView line);
bool isCommentLine(QStringView line);
bool isFavoriteLine(QStringView line);

// True when the line holds only blanks (or nothing). Only the space counts as a blank: a tab is
// content, as it is for the CAD system.
bool isBlankLine(QStringView line);

} // namespace quenfor
