#include "settings/trailingseparator.h"

#include <QDir>

namespace quenfor {

QString withTrailingSeparator(const QString& folder) {
    const QChar native = QDir::separator();
    if (folder.endsWith(native) || folder.endsWith(u'/')) {
        return folder;
    }
    return folder + native;
}

} // namespace quenfor
