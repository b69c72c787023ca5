#include "cadfiles/findattributes.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace quenfor {

#ifdef Q_OS_WIN
// Windows keeps the bits itself: they are read, not guessed from the name.
qint32 findAttributes(const QFileInfo& entry) {
    const QString path = QDir::toNativeSeparators(entry.absoluteFilePath());
    const DWORD bits = GetFileAttributesW(reinterpret_cast<const wchar_t*>(path.utf16()));
    if (bits == INVALID_FILE_ATTRIBUTES)
        return kAttributeNormal;
    constexpr DWORD kKnown = kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeDirectory |
                             kAttributeArchive | kAttributeNormal | kAttributeTemporary;
    const auto attributes = qint32(bits & kKnown);
    return attributes == 0 ? kAttributeNormal : attributes;
}
#else
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
#endif

qint32 findFileSize(qint64 bytes) {
    const auto low = qint32(quint32(quint64(bytes) & 0xFFFFFFFFu));
    const auto high = qint32(quint32(quint64(bytes) >> 32));
    return qint32(quint32(low) - quint32(high));
}

} // namespace quenfor
