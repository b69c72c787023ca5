#pragma once

#include <QString>

namespace quenfor {

// Hands a command line to the system's shell ("cmd /c" on Windows, "/bin/sh -c" elsewhere) and
// does not wait for it. False only when the shell itself could not be started; what the command
// then does is the shell's business.
bool startInShell(const QString& commandLine);

// Opens a terminal window in the folder: "cmd" on Windows, elsewhere the system's chosen terminal
// (x-terminal-emulator) or the first of the common ones that is installed. False when none could
// be started.
bool startTerminal(const QString& folder);

} // namespace quenfor
