#include "lint/quotingcheck.h"

#include "lint/linttexts.h"
#include "lint/searchpropath.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void checkQuoting(const std::vector<LintLine>& lines, QList<LintFinding>& findings) {
    for (const LintLine& l : lines) {
        if (!namesFolder(l))
            continue;
        const SearchProPath p = searchProPathOf(l.text);
        if (!p.quoted) {
            if (p.path.contains(u' '))
                addFinding(findings, l, FindingKind::Quoting,
                           u"Der Pfad enthält Leerzeichen, steht aber nicht in Anführungszeichen."_s);
        } else if (!p.closed) {
            addFinding(findings, l, FindingKind::Quoting,
                       u"Das Anführungszeichen vor dem Pfad wird nicht geschlossen."_s);
        } else if (!p.trailing.isEmpty()) {
            addFinding(findings, l, FindingKind::Quoting,
                       u"Nach dem schließenden Anführungszeichen steht noch \"%1\"."_s.arg(shownText(p.trailing)));
        }
    }
}

} // namespace quenfor
