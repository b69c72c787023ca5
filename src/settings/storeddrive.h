#pragma once

#include <QString>

namespace quenfor {

// The stores keep a Windows drive as "C:", as they always have; a drive box lists its root "C:\".
// Other roots ("/", "/mnt/data") are kept as they are.
QString storedDriveOf(const QString& root);
QString driveRootOf(const QString& storedDrive);

} // namespace quenfor
