#include "cadfiles/heldfolder.h"

#include "cadfiles/purgedelete.h"

#include <QFileInfo>

namespace quenfor {

// Windows keeps a folder that a program is inside from being swapped, and its links are
// junctions that listDirectory leaves out; the paths are used as they are.

HeldFolder::HeldFolder(const QString& path, const std::optional<FolderIdentity>&) : m_path(path) {
    const QFileInfo info(path);
    m_handle = info.isDir() ? 0 : -1;
}

HeldFolder::~HeldFolder() = default;

bool HeldFolder::isHeld() const {
    return m_handle >= 0;
}

DirectoryEntries HeldFolder::list(QList<FolderIdentity>* folderIdentities) const {
    DirectoryEntries entries = listDirectory(m_path);
    if (folderIdentities) {
        for (qsizetype i = 0; i < entries.folders.size(); ++i)
            folderIdentities->append({});
    }
    return entries;
}

HeldFolder::Removal HeldFolder::removeFile(const QString& name) const {
    const DeleteReport report = deleteFiles({m_path + u'\\' + name});
    if (!report.deleted.isEmpty())
        return Removal::Deleted;
    return report.failed.isEmpty() ? Removal::Vanished : Removal::Failed;
}

} // namespace quenfor
