#pragma once

#include "document/filefamily.h"
#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

class KnownNames;
class NameIndex;
class NameSuggester;

// Option lines whose name none of the family's lists knows, with the closest known name as a
// suggestion where one is near enough to be what was meant.
void checkUnknownOptions(const std::vector<LintLine>& lines, const NameIndex& names, FamilyKind family,
                         const KnownNames& known, NameSuggester& suggester, QList<LintFinding>& findings);

} // namespace quenfor
