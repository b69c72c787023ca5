#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

// search.pro: the same folder a second time, in whatever spelling; the CAD system would search
// it twice.
void checkRepeatedFolders(const std::vector<LintLine>& lines, QList<LintFinding>& findings);

} // namespace quenfor
