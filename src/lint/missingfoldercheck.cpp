#include "lint/missingfoldercheck.h"

#include "common/fileexists.h"
#include "common/networkpath.h"
#include "lint/linttexts.h"
#include "lint/searchpropath.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

bool hasVariable(QStringView path) {
    return path.contains(u'$') || path.count(u'%') >= 2;
}

// The path as this machine reaches it. Off Windows a network path \\server\share is looked up
// among the mounted shares, and "\" separates folders as "/" does.
QString localPath(QStringView path, const QString& baseFolder) {
    QString local = path.toString();
#ifndef Q_OS_WIN
    if (local.startsWith(u"\\\\") || local.startsWith(u"//"))
        local = networkToDrivePath(local, true);
    local.replace(u'\\', u'/');
#endif
    return QDir(baseFolder).absoluteFilePath(local);
}

} // namespace

void checkMissingFolders(const std::vector<LintLine>& lines, const QString& baseFolder, QList<LintFinding>& findings) {
    for (const LintLine& l : lines) {
        if (!namesFolder(l))
            continue;
        const QStringView path = searchProPathOf(l.text).path;
        if (path.isEmpty() || hasVariable(path))
            continue;
        const QString local = localPath(path, baseFolder);
        if (folderExists(local))
            continue;
        const QString message = fileExists(local)
                                    ? u"\"%1\" ist eine Datei, kein Verzeichnis."_s.arg(shownText(path, 200))
                                    : u"Das Verzeichnis \"%1\" gibt es nicht."_s.arg(shownText(path, 200));
        addFinding(findings, l, FindingKind::MissingFolder, message);
    }
}

} // namespace quenfor
