#include "common/networkpath.h"

#include "common/mountednetworkpath.h"
#include "common/mounttable.h"
#include "common/wholefile.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Read on every call: mounts come and go while the program runs.
QList<MountEntry> systemMounts() {
    return parseMountTable(readWholeFile(u"/proc/self/mounts"_s));
}

} // namespace

QString driveToNetworkPath(const QString& path, bool quiet) {
    return driveToNetworkPath(path, quiet, systemMounts());
}

QString networkToDrivePath(const QString& path, bool quiet) {
    return networkToDrivePath(path, quiet, systemMounts());
}

} // namespace quenfor
