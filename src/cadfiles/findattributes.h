#pragma once

#include <QtGlobal>

class QFileInfo;

namespace quenfor {

// The Windows attribute bits that the finder's mask speaks of.
enum FindAttribute : qint32 {
    kAttributeReadOnly = 1,
    kAttributeHidden = 2,
    kAttributeSystem = 4,
    kAttributeDirectory = 16,
    kAttributeArchive = 32,
    kAttributeNormal = 128,
    kAttributeTemporary = 256,
};

// The attributes of an entry in Windows terms. On Windows they are the file system's own bits;
// elsewhere they are derived: read-only = the owner may not write it, hidden = the name starts
// with ".", directory, archive = a regular file. Windows reports "normal" only for an
// entry that carries no other bit; a regular file always carries archive, so here that is left to
// the entries that are neither file nor folder (pipes, sockets, devices, broken links).
qint32 findAttributes(const QFileInfo& entry);

// An entry is accepted when every bit it carries is also in the mask.
constexpr bool acceptedByMask(qint32 attributes, qint32 mask) {
    return (attributes | mask) == mask;
}

// The size the finder reports: the low 32 bits minus the high 32 bits, both read as signed 32-bit
// numbers, wrapping in 32 bits (the finder's size field is 32 bits wide). True below 2 GiB;
// 4 GiB + 10 bytes gives 9.
qint32 findFileSize(qint64 bytes);

} // namespace quenfor
