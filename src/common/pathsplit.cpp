#include "common/pathsplit.h"

#include "common/pathseparators.h"

#include <QDir>

namespace quenfor {

bool startsWithDrive(QStringView path) {
    if (path.size() < 2 || path[1] != u':')
        return false;
    const char16_t c = path[0].unicode();
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

PathParts splitPath(QStringView path, Separators separators) {
    PathParts parts;
    QStringView rest = path;
    if (startsWithDrive(path)) {
        parts.drive = path.left(2).toString();
        rest = path.mid(2);
    }

    // Walk back from the end: each dot with something behind it cuts an extension off the current
    // end, so the one left over is the first extension of the name. The last separator ends the walk.
    qsizetype end = rest.size();
    qsizetype index = end - 1;
    for (; index >= 0; --index) {
        const QChar c = rest[index];
        if (separators == Separators::Native ? isNativeSeparator(c) : isPathSeparator(c))
            break;
        if (c == u'.' && index < end - 1) {
            parts.extension = rest.mid(index, end - index).toString();
            end = index;
        }
    }
    parts.folder = rest.left(index + 1).toString();
    parts.name = rest.mid(index + 1, end - index - 1).toString();
    return parts;
}

QString joinFolderAndName(QStringView folder, QStringView name) {
    QString joined = folder.toString();
    if (!folder.isEmpty() && !endsWithPathSeparator(folder))
        joined += QDir::separator();
    joined += name;
    return joined;
}

} // namespace quenfor
