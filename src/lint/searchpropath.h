#pragma once

#include "lint/lintline.h"

#include <QString>
#include <QStringView>

namespace quenfor {

// The folder a line of a search.pro names. A path with blanks is written in double quotes.
struct SearchProPath {
    QStringView path;     // without the quotes and the blanks around the line
    bool quoted = false;  // the line starts with a double quote
    bool closed = true;   // a quoted path: its closing quote is there
    QStringView trailing; // a quoted path: what stands after the closing quote, blanks excepted
};

// True for the lines of a search.pro that name a folder: comments and blank lines do not.
bool namesFolder(const LintLine& line);

SearchProPath searchProPathOf(QStringView line);

// The form in which two spellings of the same Windows folder agree: lower case, "\" for "/",
// no separator at the end (a drive root "c:\" keeps its own).
QString folderKey(QStringView path);

} // namespace quenfor
