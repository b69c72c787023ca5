#include "common/folderstatus.h"

#include <QFileInfo>

#ifndef Q_OS_WIN
#include <QFile>

#include <cerrno>
#include <sys/stat.h>
#endif

namespace quenfor {

FolderStatus folderStatus(const QString& path) {
    if (path.isEmpty())
        return FolderStatus::NotAFolder;
#ifdef Q_OS_WIN
    return QFileInfo(path).isDir() ? FolderStatus::Folder : FolderStatus::NotAFolder;
#else
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) == 0)
        return S_ISDIR(st.st_mode) ? FolderStatus::Folder : FolderStatus::NotAFolder;
    return errno == ENOENT || errno == ENOTDIR ? FolderStatus::NotAFolder : FolderStatus::CannotTell;
#endif
}

} // namespace quenfor
