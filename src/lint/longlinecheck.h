#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

// The CAD system reads at most 98 characters of a line, as the entry line warns.
inline constexpr int kMaxLineLength = 98;

// Lines longer than that; blanks at the end do not count, the CAD system loses nothing by them.
void checkLongLines(const std::vector<LintLine>& lines, QList<LintFinding>& findings);

} // namespace quenfor
