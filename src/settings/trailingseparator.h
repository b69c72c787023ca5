#pragma once

#include <QString>

namespace quenfor {

// The folder with the native separator at its end. A folder that already ends in one (a root
// such as "C:\" or "/", or "/tmp/") keeps its text, so the separator is never doubled; "/" counts
// as a separator on Windows too, as Windows itself accepts it.
QString withTrailingSeparator(const QString& folder);

} // namespace quenfor
