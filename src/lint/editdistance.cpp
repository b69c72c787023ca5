#include "lint/editdistance.h"

#include <algorithm>
#include <vector>

namespace quenfor {

int boundedEditDistance(QStringView a, QStringView b, int limit) {
    const int n = int(a.size());
    const int m = int(b.size());
    if (std::abs(n - m) > limit)
        return limit + 1;
    if (n == 0 || m == 0)
        return std::max(n, m);

    // Three rows of the table: the one two back is needed for swaps.
    thread_local std::vector<int> rows;
    rows.assign(size_t(3 * (m + 1)), 0);
    int* older = rows.data();
    int* previous = older + (m + 1);
    int* current = previous + (m + 1);
    for (int j = 0; j <= m; ++j)
        previous[j] = j;

    for (int i = 1; i <= n; ++i) {
        current[0] = i;
        int rowMinimum = i;
        const QChar ai = a[i - 1];
        for (int j = 1; j <= m; ++j) {
            const int cost = ai == b[j - 1] ? 0 : 1;
            int d = std::min({previous[j] + 1, current[j - 1] + 1, previous[j - 1] + cost});
            if (i > 1 && j > 1 && ai == b[j - 2] && a[i - 2] == b[j - 1])
                d = std::min(d, older[j - 2] + 1);
            current[j] = d;
            rowMinimum = std::min(rowMinimum, d);
        }
        if (rowMinimum > limit)
            return limit + 1;
        std::swap(older, previous);
        std::swap(previous, current);
    }
    return std::min(previous[m], limit + 1);
}

} // namespace quenfor
