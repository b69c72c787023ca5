#pragma once

#include "cadfiles/directorylisting.h"

#include <QString>

#include <optional>

namespace quenfor {

// Which folder a path led to when it was found (device and inode on Unix).
struct FolderIdentity {
    quint64 device = 0;
    quint64 inode = 0;
    friend bool operator==(const FolderIdentity&, const FolderIdentity&) = default;
};

// A folder held open while it is listed and its files are deleted. Listing and deleting go
// through the open handle and never follow a link, as `rm -r` does: a folder (or one above it)
// swapped for a link after it was found can redirect neither, so a purge or clean never reaches
// outside its tree. A folder opened again must still be the one found before (expected); only
// the start folder, opened without an expectation, may be reached through a link.
class HeldFolder {
public:
    HeldFolder(const QString& path, const std::optional<FolderIdentity>& expected);
    ~HeldFolder();
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;

    bool isHeld() const;
    // The path led to something other than the folder expected (a link, a file, another folder).
    bool wasSwapped() const { return m_swapped; }
    FolderIdentity identity() const { return m_identity; }

    // The visible regular files and real subfolders, as listDirectory reports them, with the
    // identity of each subfolder beside it.
    DirectoryEntries list(QList<FolderIdentity>* folderIdentities) const;

    enum class Removal { Deleted, Vanished, Failed };
    // Deletes the regular file of that name in this folder; a link or anything else is left alone.
    Removal removeFile(const QString& name) const;

private:
    QString m_path;
    int m_handle = -1;
    bool m_swapped = false;
    FolderIdentity m_identity;
};

} // namespace quenfor
