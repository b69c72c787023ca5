#include "common/wholefile.h"

#include "common/fileexists.h"

#include <QFile>

namespace quenfor {

QByteArray readWholeFile(const QString& path) {
    if (!fileExists(path))
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // readAll also copes with files that report size 0, such as those under /proc.
    return file.readAll();
}

} // namespace quenfor
