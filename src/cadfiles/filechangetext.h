#pragma once

#include <QString>

namespace quenfor {

// The date and time of a file's last change as the purge window's status line shows it
// ("21.11.2024 10:59:03"), or a German note when the file is gone.
QString fileChangeText(const QString& path);

} // namespace quenfor
