#include "lint/nameindex.h"

#include "lint/knownnames.h"

#include <QHash>

namespace quenfor {

NameIndex::NameIndex(std::vector<LintLine>& lines) {
    QHash<QString, int> ids;
    QString lower;
    for (LintLine& l : lines) {
        if (l.name.isEmpty())
            continue;
        lowerCaseInto(l.name, lower);
        const auto it = ids.constFind(lower);
        if (it != ids.constEnd()) {
            l.nameId = *it;
            continue;
        }
        l.nameId = int(m_names.size());
        ids.insert(lower, l.nameId);
        m_names.append(lower);
    }
}

} // namespace quenfor
