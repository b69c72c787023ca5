#pragma once

#include "common/mounttable.h"

#include <QList>
#include <QString>

namespace quenfor {

// The network path conversions against a given mount table, so that they can be used and tested
// without the machine's own mounts. Mounts of cifs, smb3, smbfs, nfs and nfs4 count as network
// mounts; an nfs source "server:/export" is named //server/export. Both "/" and "\" are accepted
// as separators; the results use "/".

// A local path belongs to the deepest mount that holds it; only a network mount gives a result.
QString driveToNetworkPath(const QString& path, bool quiet, const QList<MountEntry>& mounts);

// The first network mount in table order whose name begins the path gives its mount point + the rest.
QString networkToDrivePath(const QString& path, bool quiet, const QList<MountEntry>& mounts);

} // namespace quenfor
