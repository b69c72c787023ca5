#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// mapkeys FILE: the names of the mapkey list window, in its order, one a line.
int runMapkeysCommand(const CliArgs& args, const CliStreams& io);

// mapkey-dups FILE: the entries of the duplicate mapkey window, one a line.
int runMapkeyDupsCommand(const CliArgs& args, const CliStreams& io);

// German help of "mapkeys" or "mapkey-dups"; empty for any other command.
QString mapkeyCommandHelp(const QString& command);

} // namespace quenfor::cli
