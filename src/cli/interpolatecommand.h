#pragma once

#include "cli/cliargs.h"
#include "cli/clirunner.h"

namespace quenfor::cli {

// interpolate X1 Y1 X2 Y2 A: b as the interpolation window shows it, with the window's input rule
// (digits, "," and "."; a "." counts as ",") and its messages.
int runInterpolateCommand(const CliArgs& args, const CliStreams& io);

// German help of "interpolate".
QString interpolateCommandHelp();

} // namespace quenfor::cli
