#include "common/drives.h"

#include <QStorageInfo>

namespace quenfor {

QStringList logicalDrives() {
    QStringList roots;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : volumes) {
        if (volume.isValid() && volume.isReady())
            roots.append(volume.rootPath());
    }
    return roots;
}

} // namespace quenfor
