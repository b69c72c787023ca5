#pragma once

#include <QString>

namespace quenfor::cli {

// German help: the overview, or the help of one command (empty when the command is unknown).
QString overviewHelp();
QString commandHelp(const QString& command);

} // namespace quenfor::cli
