#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// drwcheck PATH...: for every drawing (a file, or every "*.drw*" of a folder) one line: the
// drawing's name, a tab, the model name read, a tab, "OK" or "NICHT", a tab, the models the drawing
// lists itself, separated by commas (empty when it names none).
int runDrwCheckCommand(const CliArgs& args, const CliStreams& io);

// German help of "drwcheck".
QString drwCheckCommandHelp();

} // namespace quenfor::cli
