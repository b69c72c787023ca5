#include "cadfiles/folderidentity.h"

#include <QFileInfo>

namespace quenfor {

QString folderIdentity(const QString& path) {
    return QFileInfo(path).canonicalFilePath();
}

} // namespace quenfor
