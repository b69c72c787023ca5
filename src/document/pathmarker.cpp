#include "document/pathmarker.h"

#include "common/fileexists.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString pathOfLine(QStringView line) {
    QStringView path = line.trimmed();
    if (path.size() >= 2 && path.startsWith(u'"') && path.endsWith(u'"'))
        path = path.mid(1, path.size() - 2);
    const bool drive =
        path.size() >= 3 && path[0].isLetter() && path[1] == u':' && (path[2] == u'\\' || path[2] == u'/');
    const bool network = path.startsWith(u"\\\\") || path.startsWith(u"//");
    const bool posix = path.startsWith(u'/');
    return drive || network || posix ? path.toString() : QString();
}

PathMarker pathMarkerFor(QStringView line) {
    const QString path = pathOfLine(line);
    if (path.isEmpty())
        return {};
    if (folderExists(path))
        return {PathMarker::State::Exists, u"ok."_s};
    return {PathMarker::State::Missing, u"Verzeichnis nicht vorhanden !"_s};
}

} // namespace quenfor

namespace quenfor {

QString optionValueFolder(QStringView line) {
    const QStringView trimmed = line.trimmed();
    const qsizetype blank = trimmed.indexOf(u' ');
    if (blank < 0)
        return {};
    QStringView value = trimmed.mid(blank + 1).trimmed();
    if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.mid(1, value.size() - 2);
    const QString folder = value.toString();
    return !folder.isEmpty() && folderExists(folder) ? folder : QString();
}

} // namespace quenfor
