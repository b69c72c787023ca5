#pragma once

#include <QString>

namespace quenfor::cli {

// German help: the overview, or the help of one command (empty when the command is unknown). Both
// are put together from the command table.
QString overviewHelp();
QString commandHelp(const QString& command);

// The help body of the document and query commands whose runners share a file.
QString builtInCommandDetails(QStringView command);

} // namespace quenfor::cli
