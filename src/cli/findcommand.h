#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// find [--no-subfolders] [--mask N] DIR PATTERN: the file finder's hits, one a line: the directory
// (with its closing separator), a tab, the file name, a tab, the size as the finder reports it.
int runFindCommand(const CliArgs& args, const CliStreams& io);

// German help of "find".
QString findCommandHelp();

} // namespace quenfor::cli
