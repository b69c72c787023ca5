#pragma once

#include <QString>

namespace quenfor {

// What a walk may conclude about a path. A path whose status the system will not tell (longer
// than the system's path limit, below a folder that may be read but not passed) is neither a
// folder nor gone: a walk reports it as unreadable instead of skipping it silently.
enum class FolderStatus { Folder, NotAFolder, CannotTell };

FolderStatus folderStatus(const QString& path);

} // namespace quenfor
