#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// effective [--format tsv] DATEI...: per option the value in effect after the CAD system read the
// files in their load order (config.sup first), where it comes from and what it overrides.
int runEffectiveCommand(const CliArgs& args, const CliStreams& io);

// diff [--format tsv] A B: what B sets differently from A; exit status 0 when both set the same,
// 1 when they differ.
int runDiffCommand(const CliArgs& args, const CliStreams& io);

// German help of "effective" and "diff"; empty for other commands.
QString compareCommandHelp(const QString& command);

} // namespace quenfor::cli
