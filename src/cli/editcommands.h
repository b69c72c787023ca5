#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

#include <QString>

namespace quenfor::cli {

// favorite LINE: the path and the name that taking LINE apart gives, one a line (an empty line
// for a name that is not taken). A path that is no existing folder is noted on stderr.
int runFavoriteCommand(const CliArgs& args, const CliStreams& io);

// replace FIND REPLACEMENT FILE: the replace window's run over FILE, written like every document
// command (stdout, -o or -i); stderr gets the count and "ersetzt".
int runReplaceCommand(const CliArgs& args, const CliStreams& io);

// German help of "favorite" and "replace"; empty for any other command.
QString editCommandHelp(const QString& command);

} // namespace quenfor::cli
