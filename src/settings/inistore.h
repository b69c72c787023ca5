#pragma once

#include <QString>

#include <memory>

class QSettings;

namespace quenfor {

std::unique_ptr<QSettings> openIniStore(const QString& file);

// Deletes the INI file of a store. Returns 0, or the system's error code (a missing file is one).
int removeIniStore(const QString& file);

} // namespace quenfor
