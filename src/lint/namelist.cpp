#include "lint/namelist.h"

#include <QFile>
#include <QFileInfo>

namespace quenfor {

std::optional<QStringList> readNameList(const QString& path) {
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringList names;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(u'!'))
            continue;
        names.append(line.toLower());
    }
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return names;
}

} // namespace quenfor
