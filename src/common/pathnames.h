#pragma once

#include <QString>

namespace quenfor {

// The 8.3 short form and the long form of a path. File systems without short names give the path
// back as it is; on Windows a path the system cannot resolve gives an empty string.
QString shortPathName(const QString& path);
QString longPathName(const QString& path);

// Whether this system's file systems keep short names at all (Windows); elsewhere both forms are
// the path itself.
bool systemKeepsShortNames();

} // namespace quenfor
