#include "cadfiles/folderidentity.h"

#include <QFile>

#include <sys/stat.h>

namespace quenfor {

QString folderIdentity(const QString& path) {
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return {};
    return QString::number(qulonglong(st.st_dev)) + u':' + QString::number(qulonglong(st.st_ino));
}

} // namespace quenfor
