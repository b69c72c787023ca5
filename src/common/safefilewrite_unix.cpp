#include "common/safefilewrite.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kMaxLinkHops = 40;
constexpr qsizetype kCopyChunk = 1 << 20;
// Room for ".", ".quenfor-XXXXXX" and the like inside the 255 bytes a name may have.
constexpr qsizetype kMaxTempBase = 200;

FileStamp stampOf(const struct stat& st) {
    return {qint64(st.st_size), qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec, quint64(st.st_ino),
            quint64(st.st_dev)};
}

QString reasonForErrno(int err) {
    switch (err) {
    case EACCES:
    case EPERM:
    case EROFS:
        return u"Es fehlen die Schreibrechte."_s;
    case ENOSPC:
        return u"Der Datenträger ist voll."_s;
    case EDQUOT:
        return u"Das Speicherkontingent ist erschöpft."_s;
    case EFBIG:
        return u"Die zulässige Dateigröße ist überschritten."_s;
    case EISDIR:
        return u"An ihrer Stelle steht ein Verzeichnis."_s;
    case ENOENT:
    case ENOTDIR:
        return u"Das Verzeichnis existiert nicht."_s;
    case EIO:
        return u"Der Datenträger meldet einen Ein-/Ausgabefehler."_s;
    case ELOOP:
        return u"Zu viele verkettete symbolische Verknüpfungen."_s;
    case ENAMETOOLONG:
        return u"Der Name ist zu lang."_s;
    case ETXTBSY:
        return u"Die Datei wird gerade ausgeführt."_s;
    case EMFILE:
    case ENFILE:
        return u"Es sind zu viele Dateien geöffnet."_s;
    case ENOMEM:
        return u"Der Arbeitsspeicher reicht nicht aus."_s;
    default:
        return u"Systemfehler %1 (%2)."_s.arg(err).arg(QString::fromLocal8Bit(std::strerror(err)));
    }
}

QByteArray parentOf(const QByteArray& path) {
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return "."_ba;
    if (slash == 0)
        return "/"_ba;
    return path.left(slash);
}

QByteArray baseOf(const QByteArray& path) {
    return path.mid(path.lastIndexOf('/') + 1);
}

bool writeAll(int fd, const char* data, qsizetype size, int& err) {
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(std::min<qsizetype>(size, 1 << 30)));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            err = errno;
            return false;
        }
        data += n;
        size -= n;
    }
    return true;
}

// Copies the whole content of one open file over another from the start; the target is cut to
// the copied size.
bool copyContent(int from, int to, int& err) {
    QByteArray buffer(kCopyChunk, Qt::Uninitialized);
    off_t offset = 0;
    for (;;) {
        const ssize_t n = ::pread(from, buffer.data(), size_t(buffer.size()), offset);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            err = errno;
            return false;
        }
        if (n == 0)
            break;
        for (ssize_t done = 0; done < n;) {
            const ssize_t w = ::pwrite(to, buffer.constData() + done, size_t(n - done), offset + done);
            if (w < 0) {
                if (errno == EINTR)
                    continue;
                err = errno;
                return false;
            }
            done += w;
        }
        offset += n;
    }
    if (::ftruncate(to, offset) != 0 || ::fsync(to) != 0) {
        err = errno;
        return false;
    }
    return true;
}

// Extended attributes go with the content; a file system without them, or an attribute only the
// system may set, is no reason to refuse the save.
void copyExtendedAttributes(const QByteArray& from, int to) {
    const ssize_t size = ::listxattr(from.constData(), nullptr, 0);
    if (size <= 0)
        return;
    QByteArray names(size, Qt::Uninitialized);
    const ssize_t got = ::listxattr(from.constData(), names.data(), size_t(size));
    if (got <= 0)
        return;
    for (const QByteArray& name : names.left(got).split('\0')) {
        if (name.isEmpty())
            continue;
        const ssize_t valueSize = ::getxattr(from.constData(), name.constData(), nullptr, 0);
        if (valueSize < 0)
            continue;
        QByteArray value(valueSize, Qt::Uninitialized);
        const ssize_t read = ::getxattr(from.constData(), name.constData(), value.data(), size_t(valueSize));
        if (read >= 0)
            ::fsetxattr(to, name.constData(), value.constData(), size_t(read), 0);
    }
}

int makeTempFile(const QByteArray& target, const char* kind, QByteArray& path) {
    path = parentOf(target) + "/." + baseOf(target).left(kMaxTempBase) + kind + "XXXXXX";
    // mkostemp creates with O_EXCL: never through a link, never a file that is already there.
    return ::mkostemp(path.data(), O_CLOEXEC);
}

mode_t currentUmask() {
    const mode_t mask = ::umask(022);
    ::umask(mask);
    return mask;
}

} // namespace

QString writeErrorReason(int err) {
    return reasonForErrno(err);
}

std::optional<FileStamp> fileStampOf(const QString& path) {
    struct stat st {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return std::nullopt;
    return stampOf(st);
}

struct SafeFileWrite::State {
    QByteArray requested;
    QByteArray target; // the requested path with its links resolved
    QByteArray tempPath;
    int fd = -1;
    bool exists = false;
    struct stat old {};
    bool expectationSet = false;
    std::optional<FileStamp> expected;
    QString reason;
    bool changed = false;
    bool failed = false;

    bool fail(const QString& why) {
        reason = why;
        failed = true;
        return false;
    }
    bool failErrno(int err) { return fail(reasonForErrno(err)); }

    // Follows links the way the kernel's protected_symlinks rule does: a link in a sticky folder
    // that anyone may write to is followed only when it belongs to us or to the folder's owner.
    bool resolve() {
        QByteArray path = requested;
        for (int hop = 0; hop <= kMaxLinkHops; ++hop) {
            struct stat st {};
            if (::lstat(path.constData(), &st) != 0) {
                if (errno != ENOENT)
                    return failErrno(errno);
                struct stat dir {};
                if (::stat(parentOf(path).constData(), &dir) != 0 || !S_ISDIR(dir.st_mode))
                    return fail(u"Das Verzeichnis %1 existiert nicht."_s.arg(QFile::decodeName(parentOf(path))));
                target = path;
                exists = false;
                return true;
            }
            if (S_ISLNK(st.st_mode)) {
                const QByteArray folder = parentOf(path);
                struct stat dir {};
                if (::stat(folder.constData(), &dir) == 0 && (dir.st_mode & S_ISVTX) && (dir.st_mode & S_IWOTH) &&
                    st.st_uid != ::geteuid() && st.st_uid != dir.st_uid)
                    return fail(u"Sie ist eine symbolische Verknüpfung eines anderen Benutzers in einem Verzeichnis, "
                                u"in das alle schreiben dürfen; ihr wird aus Sicherheitsgründen nicht gefolgt."_s);
                QByteArray link(4096, Qt::Uninitialized);
                const ssize_t n = ::readlink(path.constData(), link.data(), size_t(link.size()));
                if (n < 0)
                    return failErrno(errno);
                link.truncate(n);
                path = link.startsWith('/') ? link : folder + '/' + link;
                continue;
            }
            if (S_ISDIR(st.st_mode))
                return fail(u"An ihrer Stelle steht ein Verzeichnis."_s);
            if (!S_ISREG(st.st_mode))
                return fail(u"Sie ist keine gewöhnliche Datei, sondern ein Gerät, eine FIFO oder ein Socket; "
                            u"ersetzt werden nur gewöhnliche Dateien."_s);
            if (::access(path.constData(), W_OK) != 0)
                return failErrno(errno);
            target = path;
            exists = true;
            old = st;
            return true;
        }
        return failErrno(ELOOP);
    }

    bool unchangedOnDisk() {
        struct stat now {};
        const bool there = ::stat(target.constData(), &now) == 0;
        std::optional<FileStamp> current;
        if (there)
            current = stampOf(now);
        std::optional<FileStamp> base = expected;
        if (!expectationSet && exists)
            base = stampOf(old);
        if (!expectationSet && !exists)
            base = std::nullopt;
        if (current == base)
            return true;
        changed = true;
        return fail(QString::fromUtf16(kChangedOnDiskReason));
    }

    void removeTemp() {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
        if (!tempPath.isEmpty())
            ::unlink(tempPath.constData());
        tempPath.clear();
    }

    // Writes the new content into the existing file, so its hard links and its owner stay. The old
    // content is copied aside first and put back if the rewrite fails.
    bool rewriteInPlace() {
        const int targetFd = ::open(target.constData(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
        if (targetFd < 0)
            return failErrno(errno);
        QByteArray backupPath;
        const int backupFd = makeTempFile(target, ".quenfor-alt-", backupPath);
        const int newFd = ::open(tempPath.constData(), O_RDONLY | O_CLOEXEC);
        int err = 0;
        bool ok = backupFd >= 0 && newFd >= 0;
        if (!ok)
            err = errno;
        ok = ok && copyContent(targetFd, backupFd, err);
        if (!ok) {
            // Nothing of the file was touched yet.
            for (const int open : {targetFd, backupFd, newFd})
                if (open >= 0)
                    ::close(open);
            if (backupFd >= 0)
                ::unlink(backupPath.constData());
            return failErrno(err);
        }
        bool restored = true;
        const bool written = copyContent(newFd, targetFd, err);
        if (!written) {
            int restoreErr = 0;
            restored = copyContent(backupFd, targetFd, restoreErr);
        }
        ::close(newFd);
        ::close(backupFd);
        ::close(targetFd);
        if (restored)
            ::unlink(backupPath.constData());
        if (written)
            return true;
        if (!restored)
            return fail(reasonForErrno(err) +
                        u" Die bisherige Fassung liegt unverändert in %1."_s.arg(QFile::decodeName(backupPath)));
        return failErrno(err);
    }
};

SafeFileWrite::SafeFileWrite(const QString& path) : d(std::make_unique<State>()) {
    d->requested = QFile::encodeName(path);
}

SafeFileWrite::~SafeFileWrite() {
    d->removeTemp();
}

void SafeFileWrite::expectUnchanged(const FileStamp& stamp) {
    d->expectationSet = true;
    d->expected = stamp;
}

bool SafeFileWrite::open() {
    if (!d->resolve())
        return false;
    if (d->expectationSet && !d->unchangedOnDisk())
        return false;
    d->fd = makeTempFile(d->target, ".quenfor-", d->tempPath);
    if (d->fd < 0) {
        d->tempPath.clear();
        return d->failErrno(errno);
    }
    return true;
}

bool SafeFileWrite::write(const char* data, qsizetype size) {
    if (d->failed || d->fd < 0)
        return false;
    int err = 0;
    if (!writeAll(d->fd, data, size, err))
        return d->failErrno(err);
    return true;
}

bool SafeFileWrite::commit() {
    if (d->failed || d->fd < 0)
        return false;
    bool inPlace = false;
    if (d->exists) {
        if (d->old.st_uid != ::geteuid() || d->old.st_gid != ::getegid()) {
            if (::fchown(d->fd, d->old.st_uid, d->old.st_gid) != 0 && ::fchown(d->fd, d->old.st_uid, gid_t(-1)) != 0)
                inPlace = d->old.st_uid != ::geteuid(); // only the old file itself keeps its owner
        }
        if (::fchmod(d->fd, d->old.st_mode & 07777) != 0)
            return d->failErrno(errno);
        copyExtendedAttributes(d->target, d->fd);
        inPlace = inPlace || d->old.st_nlink > 1;
    } else if (::fchmod(d->fd, 0666 & ~currentUmask()) != 0) {
        return d->failErrno(errno);
    }
    if (::fsync(d->fd) != 0)
        return d->failErrno(errno);
    const int fd = d->fd;
    d->fd = -1;
    if (::close(fd) != 0)
        return d->failErrno(errno);
    if (!d->unchangedOnDisk())
        return false;
    if (inPlace) {
        if (!d->rewriteInPlace())
            return false;
        d->removeTemp();
        return true;
    }
    if (::rename(d->tempPath.constData(), d->target.constData()) != 0)
        return d->failErrno(errno);
    d->tempPath.clear();
    const int dir = ::open(parentOf(d->target).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return true;
}

void SafeFileWrite::cancel() {
    d->removeTemp();
}

QString SafeFileWrite::reason() const {
    return d->reason;
}

bool SafeFileWrite::changedOnDisk() const {
    return d->changed;
}

} // namespace quenfor
