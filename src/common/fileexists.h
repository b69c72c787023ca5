#pragma once

#include <QString>

namespace quenfor {

// True for an existing file (symbolic links are followed); false for folders, missing or empty paths.
bool fileExists(const QString& path);

// True for an existing folder (symbolic links are followed); false for files, missing or empty paths.
bool folderExists(const QString& path);

// The folder test for a path that is known to exist; a missing path gives false.
bool isFolder(const QString& path);

} // namespace quenfor
