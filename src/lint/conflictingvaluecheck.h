#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <QSet>
#include <QString>

#include <vector>

namespace quenfor {

class NameIndex;

// Options set again further down with another value: the CAD system takes the last one, so the
// earlier line is dead and one of the two is usually a mistake. Options that may stand more than
// once (`repeatable`, lower case) are left alone. Names are compared without regard to case, as
// the CAD system reads them; values likewise, and a run of blanks counts as one.
void checkConflictingValues(const std::vector<LintLine>& lines, const NameIndex& names, const QSet<QString>& repeatable,
                            QList<LintFinding>& findings);

// True when two values mean the same to the CAD system.
bool sameOptionValue(QStringView a, QStringView b);

} // namespace quenfor
