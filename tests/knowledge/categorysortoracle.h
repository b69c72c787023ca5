#pragma once

// The category sort as first written: every string of every list against every line, then the
// whole document once more and the duplicate removal. Cubic; the tests and the fuzzer hold the
// fast sort against it.
#include "document/cleanuptools.h"
#include "knowledge/categories.h"

#include <QStringList>

namespace quenfor::testing {

inline QStringList literalCategorySort(const QStringList& lines, const CategoryTable& table) {
    using namespace Qt::StringLiterals;
    QStringList result;
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        result.append(u"! "_s + CategoryTable::names()[k] + u" -----------------------"_s);
        for (const QString& s : table.strings(k)) {
            for (const QString& l : lines) {
                if (l.startsWith(s) && !l.startsWith(u"mapkey"_s) && !l.isEmpty() &&
                    !l.startsWith(u"browser_favorite"_s) && !l.startsWith(u"!"_s))
                    result.append(l);
            }
        }
    }
    result.append(u"! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------"_s);
    result.append(lines);
    return removeDuplicateLines(result);
}

} // namespace quenfor::testing
