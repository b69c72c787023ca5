#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <vector>

namespace quenfor {

class NameIndex;
class ValueRules;

// Option lines whose value is not among the option's allowed values, with the listed value that
// was likely meant. Only the first word of a value is compared: options that take several words
// (def_layer LAYER_TYPE name) describe their first one.
void checkOptionValues(const std::vector<LintLine>& lines, const NameIndex& names, const ValueRules& rules,
                       QList<LintFinding>& findings);

// The first word of a value as the check compares it; empty for a value the lists cannot speak
// of: none at all, quoted text or an environment variable ($PRO_DIRECTORY).
QStringView checkedValueWord(QStringView value);

} // namespace quenfor
