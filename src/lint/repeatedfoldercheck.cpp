#include "lint/repeatedfoldercheck.h"

#include "lint/searchpropath.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace quenfor {

void checkRepeatedFolders(const std::vector<LintLine>& lines, QList<LintFinding>& findings) {
    QHash<QString, int> firstLine;
    for (const LintLine& l : lines) {
        if (!namesFolder(l))
            continue;
        const QStringView path = searchProPathOf(l.text).path;
        if (path.isEmpty())
            continue;
        const QString key = folderKey(path);
        const auto it = firstLine.constFind(key);
        if (it == firstLine.constEnd())
            firstLine.insert(key, l.line);
        else
            addFinding(findings, l, FindingKind::RepeatedFolder,
                       u"Das Verzeichnis steht schon in Zeile %1."_s.arg(*it));
    }
}

} // namespace quenfor
