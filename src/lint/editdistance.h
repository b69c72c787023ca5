#pragma once

#include <QStringView>

namespace quenfor {

// The Damerau-Levenshtein distance (optimal string alignment: insertions, deletions,
// substitutions and swaps of neighbours, each counting 1), computed only as far as `limit`:
// any distance above it comes back as limit + 1, which keeps the comparison of a name against
// thousands of others cheap.
int boundedEditDistance(QStringView a, QStringView b, int limit);

} // namespace quenfor
