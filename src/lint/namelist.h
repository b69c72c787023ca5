#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

// Reads one of the program's own name lists (known option names, options that may repeat):
// one name a line, any line end; blank lines and lines beginning with "!" are skipped; names
// come back in lower case. Nothing when the file is missing or unreadable.
std::optional<QStringList> readNameList(const QString& path);

} // namespace quenfor
