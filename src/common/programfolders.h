#pragma once

#include <QString>

namespace quenfor {

// Where the files that lie beside the program are found (knowledge bases, picker sources,
// samples): $QUENFOR_DATA_DIR, else the installed share/quenfor next to the binary's folder,
// else the source tree's data folder of a developer build, else the binary's folder.
QString programDataFolder();

// The folder a save without a path goes to. On Windows the program's own folder, as users know
// it; elsewhere programs live in read-only folders, so the home folder takes that role.
QString programFolder();

} // namespace quenfor
