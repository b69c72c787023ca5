#pragma once

#include <QStringList>

#include <cstddef>
#include <vector>

namespace quenfor {

class LineCollator;

// From this many lines on, the sort runs in two halves on two threads and merges them: a
// million-line file then sorts in little more than half the time.
inline constexpr std::size_t kParallelSortFrom = 50000;

// Puts the indexes of `lines` into the collator's order; equal lines keep their order.
void sortLineIndexes(const QStringList& lines, std::vector<int>& indexes, const LineCollator& collator,
                     std::size_t parallelFrom = kParallelSortFrom);

} // namespace quenfor
