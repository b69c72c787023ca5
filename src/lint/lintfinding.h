#pragma once

#include <QList>
#include <QString>

namespace quenfor {

struct LintLine;

enum class FindingKind {
    UnixLineEnds,     // a line holds LF line ends that the reader does not split at
    UnknownOption,    // no list of the file's family knows the name
    MapkeyChain,      // a "\" without a continuation after it, or a continuation without one before
    LongLine,         // more than 98 characters
    ConflictingValue, // an option set again with another value
    RepeatedFolder,   // search.pro: the same folder twice
    DoubledBackslash, // search.pro: "\\" inside a path
    Quoting,          // search.pro: blanks without quotes, or quotes that do not close the path
    MissingFolder,    // search.pro: the folder does not exist
    InvalidValue,     // a value outside the option's allowed values
    UnknownInRelease, // the chosen release does not know the option
    HiddenInRelease,  // the chosen release reads the option without documenting it
};

// One fault found in a file: where it is and what is wrong, in German for the user.
struct LintFinding {
    int line = 0; // counted from 1, as the editor's list shows the file
    FindingKind kind = FindingKind::LongLine;
    QString message;

    bool operator==(const LintFinding&) const = default;
};

// Appends a finding for `at`; a piece of a line with LF line ends gets its piece number added,
// so the user can find it inside the long line.
void addFinding(QList<LintFinding>& findings, const LintLine& at, FindingKind kind, QString message);

} // namespace quenfor
