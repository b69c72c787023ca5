#pragma once

#include <QString>

namespace quenfor {

// The path converter keeps the last path typed under its own application "Pfadolin", section
// "Optionen", key "txt_pfad"; empty before the first use.
QString loadConverterPath();
// Returns false when the store could not be written.
bool storeConverterPath(const QString& path);

} // namespace quenfor
