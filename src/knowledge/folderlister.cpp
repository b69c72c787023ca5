#include "knowledge/folderlister.h"

#include <QDirIterator>
#include <QFileInfo>

namespace quenfor {

FolderListing QtFolderLister::list(const QString& path) const {
    FolderListing listing;
    const QFileInfo info(path);
    listing.isFolder = !path.isEmpty() && info.isDir();
    if (!listing.isFolder)
        return listing;
#ifdef Q_OS_WIN
    listing.readable = info.isReadable();
#else
    // Reading a folder's entries needs the right to read it and to pass through it.
    listing.readable = info.isReadable() && info.isExecutable();
#endif
    if (!listing.readable)
        return listing;
    QDirIterator it(path, QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    while (it.hasNext()) {
        it.next();
        const QFileInfo entry = it.fileInfo();
        if (entry.isHidden())
            listing.hidden.append(entry.fileName());
        else
            listing.subfolders.append({entry.fileName(), entry.isSymLink() || entry.isJunction()});
    }
    return listing;
}

bool QtFolderLister::isFolder(const QString& path) const {
    return !path.isEmpty() && QFileInfo(path).isDir();
}

} // namespace quenfor
