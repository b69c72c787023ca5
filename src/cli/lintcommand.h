#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// lint FILE... [--check-paths]: one line "FILE:LINE: message" per finding; exit status 1 when
// there is a finding or a file cannot be read, so a script can stop a faulty config.
int runLintCommand(const CliArgs& args, const CliStreams& io);

// German help of "lint".
QString lintCommandHelp();

} // namespace quenfor::cli
