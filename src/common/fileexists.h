#pragma once

#include <QString>

namespace quenfor {

// True for an existing file (symbolic links are followed); false for folders, missing or empty paths.
bool fileExists(const QString& path);

// True for an existing folder (symbolic links are followed); false for files, missing or empty paths.
bool folderExists(const QString& path);

// True for an existing folder whose entries can be listed: reading a folder's names needs the right
// to read it and, outside Windows, to pass through it.
bool folderCanBeListed(const QString& path);

// The folder test for a path that is known to exist; a missing path gives false.
bool isFolder(const QString& path);

} // namespace quenfor
