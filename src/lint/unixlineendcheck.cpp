#include "lint/unixlineendcheck.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void checkUnixLineEnds(const QStringList& documentLines, QList<LintFinding>& findings) {
    for (qsizetype i = 0; i < documentLines.size(); ++i) {
        const QString& line = documentLines.at(i);
        if (!line.contains(u'\n'))
            continue;
        const qsizetype ends = line.count(u'\n');
        const QString count = ends == 1 ? u"ein Zeilenende"_s : u"%1 Zeilenenden"_s.arg(ends);
        findings.append({int(i + 1), FindingKind::UnixLineEnds,
                         u"Die Zeile enthält %1 nur aus LF (Unix-Text); \"fragmentierten Unix Text reparieren\" "
                         "trennt sie in Zeilen."_s.arg(count)});
    }
}

} // namespace quenfor
