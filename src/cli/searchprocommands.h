#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// searchpro DIR: the search.pro generator's whole list for DIR, written as a document (code page,
// CR LF after every line) to stdout or with -o to a file.
int runSearchProCommand(const CliArgs& args, const CliStreams& io);

// German help of "searchpro".
QString searchProCommandHelp();

} // namespace quenfor::cli
