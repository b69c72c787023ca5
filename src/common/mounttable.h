#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace quenfor {

// One line of a mount table in the format of /proc/self/mounts.
struct MountEntry {
    QString source;     // "//server/share", "server:/export", "/dev/sda1" ...
    QString mountPoint; // where it is mounted
    QString type;       // the file system type: "cifs", "nfs4", "ext4" ...
};

// Parses a mount table in table order. Blanks and other special characters in the fields are
// written as octal escapes ("\040"); lines with fewer than three fields are skipped.
QList<MountEntry> parseMountTable(QByteArrayView text);

} // namespace quenfor
