#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

// search.pro: a path with blanks that is not in double quotes (the CAD system would take it for
// several), a quote that is not closed, and anything after the closing quote.
void checkQuoting(const std::vector<LintLine>& lines, QList<LintFinding>& findings);

} // namespace quenfor
