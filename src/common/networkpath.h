#pragma once

#include <QString>

namespace quenfor {

// Converts a path on a network drive (Windows) or under a network mount (elsewhere) to its network
// form \\server\share\rest or //server/share/rest. A path that is not on the network raises
// QuenforError 5; with quiet set it comes back unchanged instead.
QString driveToNetworkPath(const QString& path, bool quiet = false);

// The way back: the first drive or mount, in the system's order, whose network name begins the
// path (without regard to case) gives drive or mount point + the rest. Without one it raises
// QuenforError 5, or with quiet set returns the path unchanged.
QString networkToDrivePath(const QString& path, bool quiet = false);

} // namespace quenfor
