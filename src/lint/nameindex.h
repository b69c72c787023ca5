#pragma once

#include "lint/lintline.h"

#include <QStringList>

#include <vector>

namespace quenfor {

// Numbers the distinct option names of a file (in lower case, as the CAD system compares them),
// so the checks look a name up once per file instead of once per line: a million-line file
// may hold a hundred thousand names, and each hash lookup costs a trip to memory.
class NameIndex {
public:
    // Writes every line's number into its `nameId`.
    explicit NameIndex(std::vector<LintLine>& lines);

    int size() const { return int(m_names.size()); }
    // The name of a number, in lower case.
    const QString& name(int id) const { return m_names.at(id); }

private:
    QStringList m_names;
};

} // namespace quenfor
