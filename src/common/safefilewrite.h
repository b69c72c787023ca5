#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace quenfor {

// What tells one state of a file from another: a save checks that the file on disk is still the
// one that was read before it replaces it, so a change by another program is never overwritten.
struct FileStamp {
    qint64 size = 0;
    qint64 modifiedNs = 0;
    quint64 inode = 0;
    quint64 device = 0;
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// Why a save refuses to replace a file that another program changed since it was read.
inline constexpr char16_t kChangedOnDiskReason[] =
    u"Die Datei wurde seit dem Lesen von einem anderen Programm geändert oder gelöscht; "
    u"sie wird nicht überschrieben, damit dessen Änderung nicht verloren geht.";

// Why a write failed with this system error code, in German, a full sentence.
QString writeErrorReason(int err);

// The stamp of the file at path, links followed; nullopt when nothing readable is there.
std::optional<FileStamp> fileStampOf(const QString& path);

// Replaces a file so that a failure at any point, the last byte included, leaves the previous
// file byte for byte as it was:
// - every byte is written unbuffered and checked, and synced to the disk before the file is
//   replaced, so a full disk or a file size limit is reported and never commits a cut file;
// - only regular files are replaced (never a device, FIFO or socket); symbolic links are
//   followed as the kernel's protected_symlinks rule allows, no further;
// - the new file keeps the owner, group, mode and extended attributes of the old one; a file
//   with other hard links, or whose owner cannot be kept, is rewritten in place after a safe
//   copy of the old content, so its links and owner stay;
// - the temporary file is created exclusively with a unique name and never through a link;
// - a file changed on disk since it was read (expectUnchanged) is not replaced.
class SafeFileWrite {
public:
    explicit SafeFileWrite(const QString& path);
    ~SafeFileWrite(); // an uncommitted temporary file is removed
    SafeFileWrite(const SafeFileWrite&) = delete;
    SafeFileWrite& operator=(const SafeFileWrite&) = delete;

    // The state of the file when it was read.
    void expectUnchanged(const FileStamp& stamp);

    bool open();
    bool write(const char* data, qsizetype size);
    bool commit();
    void cancel();

    // Why the last step failed, in German, a full sentence.
    QString reason() const;
    // The last step failed because the file changed on disk since it was read.
    bool changedOnDisk() const;

private:
    struct State;
    std::unique_ptr<State> d;
};

} // namespace quenfor
