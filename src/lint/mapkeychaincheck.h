#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

// Mapkeys whose lines do not hang together: a continuation line whose line above does not end
// in "\", and a mapkey line ending in "\" that no continuation line follows.
void checkMapkeyChains(const std::vector<LintLine>& lines, QList<LintFinding>& findings);

} // namespace quenfor
