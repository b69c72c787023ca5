#pragma once

#include "document/linekind.h"

#include <QStringList>
#include <QStringView>

#include <vector>

namespace quenfor {

// A line as the checks see it. A document line that holds LF line ends (a file from Unix read
// by the CR LF rule) is checked piece by piece, as the CAD system would read it; all pieces
// keep the number of the document line they stand in.
struct LintLine {
    QStringView text;
    int line = 0;  // document line, counted from 1
    int piece = 0; // 0 for a whole line, else the piece's number within its line, from 1
    LineKind kind = LineKind::Blank;
    QStringView name;  // option lines: the first word (mapkey lines: "mapkey"), as written
    QStringView value; // the rest without the blanks around it
    int nameId = -1;   // the name's number in the run's NameIndex; -1 for lines without a name
};

// Every line of the document, split at LF and classified. The views point into `lines`, which
// must outlive the result.
std::vector<LintLine> lintLinesOf(const QStringList& lines);

// Blanks as the option reader takes them: the space and the tab.
inline bool isOptionBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

// Case folding as values are compared, with a shortcut for ASCII, which nearly every value is.
inline QChar foldedValueChar(QChar c) {
    if (c.unicode() < 0x80)
        return c.unicode() >= u'A' && c.unicode() <= u'Z' ? QChar(c.unicode() + 0x20) : c;
    return c.toCaseFolded();
}

// Whether the line sets an option whose name the checks look at. A mapkey head names no option;
// anything else that the line kinds call a mapkey (a word that merely begins with "mapkey") is
// checked like any option. Needs the line's nameId.
bool namesAnOption(const LintLine& l);

// The text without the blanks at its end.
QStringView withoutTrailingBlanks(QStringView text);

} // namespace quenfor
