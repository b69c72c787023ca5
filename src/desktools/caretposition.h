#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// Where the caret stands in a text whose lines are separated by CR LF, both counted from 1.
struct LineColumn {
    qsizetype line = 1;
    qsizetype column = 1;

    friend bool operator==(const LineColumn&, const LineColumn&) = default;
};

// The line is the number of line breaks before the caret + 1; the column the caret's distance
// from the start of its line + 1. A lone CR or LF breaks a line as well; a caret between the CR
// and the LF of a pair still stands on the line the pair ends. Positions beyond the text count
// as its end.
LineColumn lineColumnAt(QStringView text, qsizetype caret);

// "Zeile " + line + ", Spalte " + column, as the status line shows it.
QString lineColumnText(const LineColumn& place);

} // namespace quenfor
