#include "common/safefilewrite.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace quenfor {

// Windows has no device files among ordinary paths and keeps owner and attributes through
// QSaveFile's replace; what must hold there too is that every byte is checked before the commit.

QString writeErrorReason(int err) {
    return u"Systemfehler %1."_s.arg(err);
}

std::optional<FileStamp> fileStampOf(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileStamp{info.size(), info.lastModified().toMSecsSinceEpoch() * 1000000, 0, 0};
}

struct SafeFileWrite::State {
    QString path;
    QSaveFile file;
    bool expectationSet = false;
    std::optional<FileStamp> expected;
    std::optional<FileStamp> atOpen;
    QString reason;
    bool changed = false;
    bool failed = false;

    bool fail(const QString& why) {
        reason = why;
        failed = true;
        file.cancelWriting();
        return false;
    }
    bool unchangedOnDisk() {
        const auto base = expectationSet ? expected : atOpen;
        if (fileStampOf(path) == base)
            return true;
        changed = true;
        return fail(QString::fromUtf16(kChangedOnDiskReason));
    }
};

SafeFileWrite::SafeFileWrite(const QString& path) : d(std::make_unique<State>()) {
    d->path = path;
    d->file.setFileName(path);
}

SafeFileWrite::~SafeFileWrite() = default;

void SafeFileWrite::expectUnchanged(const FileStamp& stamp) {
    d->expectationSet = true;
    d->expected = stamp;
}

bool SafeFileWrite::open() {
    if (QFileInfo(d->path).isDir())
        return d->fail(u"An ihrer Stelle steht ein Verzeichnis."_s);
    d->atOpen = fileStampOf(d->path);
    if (d->expectationSet && !d->unchangedOnDisk())
        return false;
    if (!d->file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return d->fail(d->file.errorString() + u'.');
    return true;
}

bool SafeFileWrite::write(const char* data, qsizetype size) {
    if (d->failed)
        return false;
    if (d->file.write(data, size) != size)
        return d->fail(d->file.errorString() + u'.');
    return true;
}

bool SafeFileWrite::commit() {
    if (d->failed)
        return false;
    if (!d->file.flush())
        return d->fail(d->file.errorString() + u'.');
    if (!d->unchangedOnDisk())
        return false;
    if (!d->file.commit())
        return d->fail(d->file.errorString() + u'.');
    return true;
}

void SafeFileWrite::cancel() {
    d->file.cancelWriting();
}

QString SafeFileWrite::reason() const {
    return d->reason;
}

bool SafeFileWrite::changedOnDisk() const {
    return d->changed;
}

} // namespace quenfor
