#include "settings/storeddrive.h"

#include <QDir>

namespace quenfor {

QString storedDriveOf(const QString& root) {
    if (root.size() == 3 && root[1] == u':')
        return root.left(2);
    return root;
}

QString driveRootOf(const QString& storedDrive) {
    if (storedDrive.size() == 2 && storedDrive[1] == u':')
        return storedDrive + QDir::separator();
    return storedDrive;
}

} // namespace quenfor
