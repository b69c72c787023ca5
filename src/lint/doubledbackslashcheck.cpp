#include "lint/doubledbackslashcheck.h"

#include "lint/searchpropath.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void checkDoubledBackslashes(const std::vector<LintLine>& lines, QList<LintFinding>& findings) {
    for (const LintLine& l : lines) {
        if (!namesFolder(l))
            continue;
        const QStringView path = searchProPathOf(l.text).path;
        const qsizetype at = path.indexOf(u"\\\\", 1);
        if (at >= 0)
            addFinding(findings, l, FindingKind::DoubledBackslash,
                       u"Doppelter \"\\\" im Pfad an Stelle %1."_s.arg(at + 1));
    }
}

} // namespace quenfor
