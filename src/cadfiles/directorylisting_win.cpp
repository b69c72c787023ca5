#include "cadfiles/directorylisting.h"

#include <QDirIterator>
#include <QFileInfo>

namespace quenfor {

DirectoryEntries listDirectory(const QString& folder) {
    DirectoryEntries entries;
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir())
        return entries;
    entries.exists = true;
    entries.readable = info.isReadable();
    // Without QDir::Hidden and QDir::System the hidden and system entries stay out, as in the
    // file list control; links and junctions are filtered below.
    QDirIterator it(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (it.hasNext()) {
        it.next();
        const QFileInfo entry = it.fileInfo();
        if (entry.isSymLink() || entry.isJunction())
            continue;
        if (entry.isDir())
            entries.folders.append(entry.fileName());
        else if (entry.isFile())
            entries.files.append(entry.fileName());
    }
    return entries;
}

} // namespace quenfor
