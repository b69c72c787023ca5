#include "lint/longlinecheck.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void checkLongLines(const std::vector<LintLine>& lines, QList<LintFinding>& findings) {
    for (const LintLine& l : lines) {
        if (l.text.size() <= kMaxLineLength)
            continue;
        const qsizetype length = withoutTrailingBlanks(l.text).size();
        if (length <= kMaxLineLength)
            continue;
        QString message = u"Die Zeile hat %1 Zeichen, mehr als %2."_s.arg(length).arg(kMaxLineLength);
        if (l.kind == LineKind::Mapkey || l.kind == LineKind::Continuation)
            message += u" Ein Mapkey lässt sich nach einem \";\" mit \"\\\" umbrechen."_s;
        addFinding(findings, l, FindingKind::LongLine, std::move(message));
    }
}

} // namespace quenfor
