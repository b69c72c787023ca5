#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

class NameIndex;
class OptionReleases;

// Option lines whose option the chosen release (an index into cadReleases()) does not know or
// reads only as a hidden option. Names the release lists say nothing of are left to the check
// of unknown names.
void checkReleaseOptions(const std::vector<LintLine>& lines, const NameIndex& names, const OptionReleases& releases,
                         int release, QList<LintFinding>& findings);

} // namespace quenfor
