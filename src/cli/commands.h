#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// Document commands: read FILE, run one tool, write the document as the window saves it.
int runDocumentCommand(const CliArgs& args, const CliStreams& io);

// Query commands: print UTF-8 lines.
int runQueryCommand(const CliArgs& args, const CliStreams& io);

} // namespace quenfor::cli
