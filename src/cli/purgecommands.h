#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// purge [-r] [-n] DIR: deletes the older versions in DIR (with -r in the whole tree below it) and
// prints the full path of every file deleted; with -n/--dry-run nothing is deleted and the files
// that would be are printed.
int runPurgeCommand(const CliArgs& args, const CliStreams& io);

// clean [-r] [-n] [--patterns P] DIR: the same for the by-product files matching the cleaning
// patterns (default: the stored pattern list of "Dr.Fegel", else the default list).
int runCleanCommand(const CliArgs& args, const CliStreams& io);

// German help of "purge" or "clean" (empty for another command).
QString purgeCommandHelp(const QString& command);

} // namespace quenfor::cli
