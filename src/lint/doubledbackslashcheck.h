#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

// search.pro: a doubled "\" inside a path. Two at the very start open a network path
// (\\server\share) and are right.
void checkDoubledBackslashes(const std::vector<LintLine>& lines, QList<LintFinding>& findings);

} // namespace quenfor
