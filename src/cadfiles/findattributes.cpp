#include "cadfiles/findattributes.h"

#include <QFileInfo>

namespace quenfor {

qint32 findAttributes(const QFileInfo& entry) {
    qint32 attributes = 0;
    if (entry.fileName().startsWith(u'.'))
        attributes |= kAttributeHidden;
    if (entry.isDir())
        attributes |= kAttributeDirectory;
    else if (entry.isFile())
        attributes |= kAttributeArchive;
    if ((entry.isDir() || entry.isFile()) && !entry.permission(QFile::WriteOwner))
        attributes |= kAttributeReadOnly;
    if (attributes == 0)
        attributes = kAttributeNormal;
    return attributes;
}

qint32 findFileSize(qint64 bytes) {
    const auto low = qint32(quint32(quint64(bytes) & 0xFFFFFFFFu));
    const auto high = qint32(quint32(quint64(bytes) >> 32));
    return qint32(quint32(low) - quint32(high));
}

} // namespace quenfor
