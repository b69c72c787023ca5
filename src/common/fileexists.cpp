#include "common/fileexists.h"

#include <QFileInfo>

namespace quenfor {

bool fileExists(const QString& path) {
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    return info.exists() && !info.isDir();
}

bool folderExists(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool folderCanBeListed(const QString& path) {
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
#ifdef Q_OS_WIN
    return info.isDir() && info.isReadable();
#else
    return info.isDir() && info.isReadable() && info.isExecutable();
#endif
}

bool isFolder(const QString& path) {
    return QFileInfo(path).isDir();
}

} // namespace quenfor
