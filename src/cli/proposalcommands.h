#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// proposal [FILE]: the 356 lines of the config.pro proposal appended to FILE's lines (to an
// empty document without FILE), written as a document command writes (stdout, -o or -i).
int runProposalCommand(const CliArgs& args, const CliStreams& io);

// ghost [FILE]: the three ghost options appended likewise.
int runGhostCommand(const CliArgs& args, const CliStreams& io);

// German help of "proposal" or "ghost"; empty for any other command.
QString proposalCommandHelp(const QString& command);

} // namespace quenfor::cli
