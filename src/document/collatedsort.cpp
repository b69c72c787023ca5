#include "document/collatedsort.h"

#include "document/linecollator.h"

#include <QCollator>

#include <algorithm>
#include <system_error>
#include <thread>

namespace quenfor {

namespace {

// A locale whose ASCII order is no simple table (contractions such as a Czech "ch") sorts by the
// library's sort keys.
void sortBySortKeys(const QStringList& lines, std::vector<int>& indexes, const QCollator& collator) {
    std::vector<QCollatorSortKey> keys;
    keys.reserve(indexes.size());
    for (int i : indexes)
        keys.push_back(collator.sortKey(lines[i]));
    std::vector<int> order(indexes.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = int(i);
    // As QCollator::compare does, an empty line goes before every other line, even one whose
    // characters the collation ignores (their sort keys would be equal).
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const bool emptyA = lines[indexes[a]].isEmpty();
        const bool emptyB = lines[indexes[b]].isEmpty();
        if (emptyA || emptyB)
            return emptyA && !emptyB;
        return keys[a].compare(keys[b]) < 0;
    });
    std::vector<int> sorted;
    sorted.reserve(order.size());
    for (int i : order)
        sorted.push_back(indexes[i]);
    indexes.swap(sorted);
}

struct PrefixedLine {
    LineCollator::SortPrefix prefix;
    int index;
};

// Strictly ordered: equal lines by their place in the file, so two sorted halves merge into the
// same order one sort would give.
class PrefixedLess {
public:
    PrefixedLess(const LineCollator& collator, const QStringList& lines) : m_collator(collator), m_lines(lines) {}
    bool operator()(const PrefixedLine& a, const PrefixedLine& b) const {
        const int c = m_collator.comparePrefixed(a.prefix, m_lines[a.index], b.prefix, m_lines[b.index]);
        return c != 0 ? c < 0 : a.index < b.index;
    }

private:
    const LineCollator& m_collator;
    const QStringList& m_lines;
};

void sortRange(const QStringList& lines, const std::vector<int>& indexes, std::vector<PrefixedLine>& entries,
               size_t from, size_t to, const LineCollator& collator) {
    for (size_t i = from; i < to; ++i)
        entries[i] = {collator.sortPrefix(lines[indexes[i]]), indexes[i]};
    std::sort(entries.begin() + std::ptrdiff_t(from), entries.begin() + std::ptrdiff_t(to),
              PrefixedLess(collator, lines));
}

// Sorts the second half on its own thread; false when no thread could be started.
bool sortHalvesInParallel(const QStringList& lines, const std::vector<int>& indexes, std::vector<PrefixedLine>& entries,
                          size_t half, const LineCollator& collator) {
    const LineCollator secondCollator = collator.forAnotherThread();
    std::thread second;
    try {
        second = std::thread([&] { sortRange(lines, indexes, entries, half, entries.size(), secondCollator); });
    } catch (const std::system_error&) {
        return false;
    }
    sortRange(lines, indexes, entries, 0, half, collator);
    second.join();
    return true;
}

} // namespace

void sortLineIndexes(const QStringList& lines, std::vector<int>& indexes, const LineCollator& collator,
                     std::size_t parallelFrom) {
    if (!collator.hasAsciiTable()) {
        sortBySortKeys(lines, indexes, collator.collator());
        return;
    }

    // A packed prefix decides most comparisons without looking at the text.
    std::vector<PrefixedLine> entries(indexes.size());
    const size_t half = indexes.size() >= parallelFrom && indexes.size() >= 2 ? indexes.size() / 2 : 0;
    if (half == 0 || !sortHalvesInParallel(lines, indexes, entries, half, collator)) {
        sortRange(lines, indexes, entries, 0, entries.size(), collator);
        for (size_t i = 0; i < entries.size(); ++i)
            indexes[i] = entries[i].index;
        return;
    }
    // The merge writes the indexes only, so no second list of entries is needed.
    const PrefixedLess less(collator, lines);
    size_t a = 0;
    size_t b = half;
    size_t out = 0;
    while (a < half && b < entries.size())
        indexes[out++] = less(entries[b], entries[a]) ? entries[b++].index : entries[a++].index;
    while (a < half)
        indexes[out++] = entries[a++].index;
    while (b < entries.size())
        indexes[out++] = entries[b++].index;
}

} // namespace quenfor
