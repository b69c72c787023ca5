#include "common/regularfile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

FileOpen regularFileStatus(const QString& path) {
    if (path.isEmpty())
        return FileOpen::Missing;
    // Pipes and devices have names in the device namespace, not in a folder.
    if (path.startsWith(u"\\\\.\\"_s) || path.startsWith(u"//./"_s))
        return FileOpen::NotRegular;
    const QFileInfo info(path);
    if (!info.exists())
        return FileOpen::Missing;
    if (info.isDir())
        return FileOpen::Folder;
    return info.isFile() ? FileOpen::Opened : FileOpen::NotRegular;
}

FileOpen openRegularFile(QFile& file, const QString& path) {
    const FileOpen status = regularFileStatus(path);
    if (status != FileOpen::Opened)
        return status;
    if (file.isOpen())
        file.close();
    file.setFileName(path);
    return file.open(QIODevice::ReadOnly) ? FileOpen::Opened : FileOpen::Unreadable;
}

} // namespace quenfor
