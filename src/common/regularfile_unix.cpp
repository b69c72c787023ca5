#include "common/regularfile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quenfor {

namespace {

FileOpen statusOf(const struct stat& st) {
    if (S_ISREG(st.st_mode))
        return FileOpen::Opened;
    return S_ISDIR(st.st_mode) ? FileOpen::Folder : FileOpen::NotRegular;
}

FileOpen failureOf(int error) {
    return error == ENOENT || error == ENOTDIR ? FileOpen::Missing : FileOpen::Unreadable;
}

} // namespace

FileOpen regularFileStatus(const QString& path) {
    if (path.isEmpty())
        return FileOpen::Missing;
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return failureOf(errno);
    return statusOf(st);
}

FileOpen openRegularFile(QFile& file, const QString& path) {
    // The status first, so that no device is ever opened (some act on an open alone).
    const FileOpen before = regularFileStatus(path);
    if (before != FileOpen::Opened)
        return before;
    // The name may have been swapped for a pipe meanwhile: the open must not wait for a writer,
    // and the handle's own type decides.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return failureOf(errno);
    struct stat st;
    FileOpen outcome = ::fstat(fd, &st) == 0 ? statusOf(st) : FileOpen::Unreadable;
    if (outcome == FileOpen::Opened) {
        const int flags = ::fcntl(fd, F_GETFL);
        if (flags < 0 || ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK) != 0)
            outcome = FileOpen::Unreadable;
    }
    if (outcome != FileOpen::Opened) {
        ::close(fd);
        return outcome;
    }
    if (file.isOpen())
        file.close();
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return FileOpen::Unreadable;
    }
    return FileOpen::Opened;
}

} // namespace quenfor
