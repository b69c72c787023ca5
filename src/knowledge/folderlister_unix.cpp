#include "knowledge/folderlister.h"

#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <sys/stat.h>

namespace quenfor {

namespace {

bool isFolderAt(const QByteArray& path) {
    struct stat st;
    return ::stat(path.constData(), &st) == 0 && S_ISDIR(st.st_mode);
}

// Reads the entries directly: the type comes with each entry, so a tree of folders costs one open
// per folder and no file status per entry, which keeps the walk as fast as `find`.
class PosixFolderLister : public FolderLister {
public:
    FolderListing list(const QString& path) const override {
        FolderListing listing;
        if (path.isEmpty())
            return listing;
        const QByteArray encoded = QFile::encodeName(path);
        DIR* dir = ::opendir(encoded.constData());
        if (!dir) {
            // Opening tells a missing path from a folder that cannot be read. The reason may also
            // keep its status from us (a path beyond the system's length limit, a parent that
            // may be read but not passed): such a folder counts as unreadable, not as gone, or
            // the walk would take its parent's subfolders again and again.
            listing.isFolder = errno != ENOENT && errno != ENOTDIR;
            return listing;
        }
        listing.isFolder = true;
        listing.readable = true;
        QByteArray entryPath = encoded;
        if (!entryPath.endsWith('/'))
            entryPath.append('/');
        const qsizetype prefix = entryPath.size();
        while (const dirent* entry = ::readdir(dir)) {
            const bool hidden = entry->d_name[0] == '.';
            if (hidden && (entry->d_name[1] == '\0' || (entry->d_name[1] == '.' && entry->d_name[2] == '\0')))
                continue;
            unsigned char type = entry->d_type;
            bool linked = false;
            if (type == DT_UNKNOWN || type == DT_LNK) {
                entryPath.truncate(prefix);
                entryPath.append(entry->d_name);
                struct stat st;
                if (::lstat(entryPath.constData(), &st) != 0)
                    continue;
                linked = S_ISLNK(st.st_mode);
                if (linked ? !isFolderAt(entryPath) : !S_ISDIR(st.st_mode))
                    continue;
            } else if (type != DT_DIR) {
                continue;
            }
            if (hidden)
                listing.hidden.append(QFile::decodeName(entry->d_name));
            else
                listing.subfolders.append({QFile::decodeName(entry->d_name), linked});
        }
        ::closedir(dir);
        return listing;
    }

    bool isFolder(const QString& path) const override { return !path.isEmpty() && isFolderAt(QFile::encodeName(path)); }
};

} // namespace

const FolderLister& systemFolderLister() {
    static const PosixFolderLister lister;
    return lister;
}

} // namespace quenfor
