#include "cadfiles/directorylisting.h"

#include "common/rawfilenames.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace quenfor {

// Reads the entries directly: the type comes with each entry, so a folder costs one open and no
// file status per entry, which keeps a walk over a large tree as fast as `find`.
DirectoryEntries listDirectory(const QString& folder) {
    DirectoryEntries entries;
    if (folder.isEmpty())
        return entries;
    const QByteArray encoded = encodeFileName(folder);
    struct stat folderStatus;
    if (::stat(encoded.constData(), &folderStatus) != 0) {
        // A folder whose status the system will not tell (path too long, a parent that may not
        // be passed) is still there: it is reported as unreadable, not taken for vanished.
        entries.exists = errno != ENOENT && errno != ENOTDIR;
        return entries;
    }
    if (!S_ISDIR(folderStatus.st_mode))
        return entries;
    entries.exists = true;
    DIR* dir = ::opendir(encoded.constData());
    if (!dir)
        return entries;
    entries.readable = true;
    const int dirFd = ::dirfd(dir);
    while (const dirent* entry = ::readdir(dir)) {
        if (entry->d_name[0] == '.') // ".", ".." and hidden entries
            continue;
        unsigned char type = entry->d_type;
        if (type == DT_UNKNOWN) {
            struct stat st;
            if (::fstatat(dirFd, entry->d_name, &st, AT_SYMLINK_NOFOLLOW) != 0)
                continue;
            type = S_ISREG(st.st_mode) ? DT_REG : S_ISDIR(st.st_mode) ? DT_DIR : DT_UNKNOWN;
        }
        if (type == DT_REG)
            entries.files.append(decodeFileName(entry->d_name));
        else if (type == DT_DIR)
            entries.folders.append(decodeFileName(entry->d_name));
    }
    ::closedir(dir);
    return entries;
}

} // namespace quenfor
