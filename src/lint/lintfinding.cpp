#include "lint/lintfinding.h"

#include "lint/lintline.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void addFinding(QList<LintFinding>& findings, const LintLine& at, FindingKind kind, QString message) {
    if (at.piece > 0)
        message += u" (Teilzeile %1)"_s.arg(at.piece);
    findings.append({at.line, kind, std::move(message)});
}

} // namespace quenfor
