#pragma once

#include "compare/configentries.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace quenfor {

enum class DiffChange { Added, Removed, Changed };

// One difference between file A and file B.
struct DiffEntry {
    DiffChange change = DiffChange::Changed;
    EntryKind kind = EntryKind::Option;
    QString name;         // option name as written (in B when it is there), or a mapkey's key sequence
    QStringView oldValue; // in A; empty when added
    QStringView newValue; // in B; empty when removed
    int lineA = 0;        // 0 when not in A
    int lineB = 0;        // 0 when not in B
    // The texts the values point into, the line or a mapkey's joined macro: shared, not copied,
    // so a value of hundreds of megabytes is not held twice. Copies of the entry stay valid.
    QString heldA;
    QString heldB;
};

// Compares what two files set, not how they are written: the order of the lines, the case of
// option names, comments, blank lines and how a mapkey is split over lines do not matter. In each
// file the last value of an option counts; values are compared as the CAD system reads them
// (comparableValue); repeatable options compare their sets of values, mapkeys their macros
// exactly. The differences come sorted by name.
std::vector<DiffEntry> diffConfigs(const QStringList& linesA, const QStringList& linesB,
                                   const QSet<QString>& repeatable);

} // namespace quenfor
