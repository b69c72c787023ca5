#include "settings/defaultfolders.h"

#include "settings/trailingseparator.h"

#include <QDir>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

QString defaultConfigFile() {
    return QDir::homePath() + u"/config.pro"_s;
}

QString defaultFolder() {
    return QDir::homePath();
}

QString defaultDrive() {
    const QStorageInfo volume(QDir::homePath());
    return volume.isValid() && !volume.rootPath().isEmpty() ? volume.rootPath() : u"/"_s;
}

QString defaultTempFolder() {
    return withTrailingSeparator(QDir::toNativeSeparators(QDir::tempPath()));
}

} // namespace quenfor
