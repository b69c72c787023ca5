#include "cadfiles/heldfolder.h"

#include "common/rawfilenames.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quenfor {

HeldFolder::HeldFolder(const QString& path, const std::optional<FolderIdentity>& expected) : m_path(path) {
    const QByteArray encoded = encodeFileName(path);
    // O_NOFOLLOW: a folder found before that is a link now was swapped, and is not entered.
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (expected ? O_NOFOLLOW : 0);
    m_handle = ::open(encoded.constData(), flags);
    if (m_handle < 0) {
        m_swapped = expected && (errno == ELOOP || errno == ENOTDIR);
        return;
    }
    struct stat st {};
    if (::fstat(m_handle, &st) != 0) {
        ::close(m_handle);
        m_handle = -1;
        return;
    }
    m_identity = {quint64(st.st_dev), quint64(st.st_ino)};
    if (expected && !(*expected == m_identity)) {
        // A folder from somewhere else now stands at this path (a parent was swapped).
        m_swapped = true;
        ::close(m_handle);
        m_handle = -1;
    }
}

HeldFolder::~HeldFolder() {
    if (m_handle >= 0)
        ::close(m_handle);
}

bool HeldFolder::isHeld() const {
    return m_handle >= 0;
}

DirectoryEntries HeldFolder::list(QList<FolderIdentity>* folderIdentities) const {
    DirectoryEntries entries;
    if (m_handle < 0)
        return entries;
    entries.exists = true;
    const int listing = ::fcntl(m_handle, F_DUPFD_CLOEXEC, 0);
    DIR* dir = listing >= 0 ? ::fdopendir(listing) : nullptr;
    if (!dir) {
        if (listing >= 0)
            ::close(listing);
        return entries;
    }
    entries.readable = true;
    ::rewinddir(dir);
    while (const dirent* entry = ::readdir(dir)) {
        if (entry->d_name[0] == '.') // ".", ".." and hidden entries
            continue;
        unsigned char type = entry->d_type;
        struct stat st {};
        const bool needStatus = type == DT_UNKNOWN || (type == DT_DIR && folderIdentities);
        if (needStatus) {
            if (::fstatat(m_handle, entry->d_name, &st, AT_SYMLINK_NOFOLLOW) != 0)
                continue;
            type = S_ISREG(st.st_mode) ? DT_REG : S_ISDIR(st.st_mode) ? DT_DIR : DT_UNKNOWN;
        }
        if (type == DT_REG) {
            entries.files.append(decodeFileName(entry->d_name));
        } else if (type == DT_DIR) {
            entries.folders.append(decodeFileName(entry->d_name));
            if (folderIdentities)
                folderIdentities->append({quint64(st.st_dev), quint64(st.st_ino)});
        }
    }
    ::closedir(dir);
    return entries;
}

HeldFolder::Removal HeldFolder::removeFile(const QString& name) const {
    if (m_handle < 0)
        return Removal::Vanished;
    const QByteArray encoded = encodeFileName(name);
    struct stat st {};
    if (::fstatat(m_handle, encoded.constData(), &st, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(st.st_mode))
        return Removal::Vanished;
    // Deleting needs no write permission on the file itself on Unix, so its mode stays untouched.
    if (::unlinkat(m_handle, encoded.constData(), 0) == 0)
        return Removal::Deleted;
    return errno == ENOENT ? Removal::Vanished : Removal::Failed;
}

} // namespace quenfor
