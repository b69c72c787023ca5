#include "common/pathnames.h"

namespace quenfor {

QString shortPathName(const QString& path) {
    return path;
}

QString longPathName(const QString& path) {
    return path;
}

bool systemKeepsShortNames() {
    return false;
}

} // namespace quenfor
