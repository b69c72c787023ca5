#pragma once

#include <QString>

namespace quenfor {

// Opens a terminal window in the folder: "cmd" on Windows, elsewhere the system's chosen terminal
// (x-terminal-emulator) or the first of the common ones that is installed. False when none could
// be started.
bool startTerminal(const QString& folder);

} // namespace quenfor
