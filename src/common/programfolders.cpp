#include "common/programfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace quenfor {

QString programDataFolder() {
    const QString fromEnvironment = qEnvironmentVariable("QUENFOR_DATA_DIR");
    if (!fromEnvironment.isEmpty())
        return fromEnvironment;
    const QString binary = QCoreApplication::applicationDirPath();
    const QString installed = QDir(binary).absoluteFilePath(QStringLiteral("../share/quenfor"));
    if (QFileInfo(installed).isDir())
        return QDir::cleanPath(installed);
#ifdef QUENFOR_SOURCE_DATA_DIR
    if (QFileInfo(QStringLiteral(QUENFOR_SOURCE_DATA_DIR)).isDir())
        return QStringLiteral(QUENFOR_SOURCE_DATA_DIR);
#endif
    return binary;
}

QString programFolder() {
#ifdef Q_OS_WIN
    return QCoreApplication::applicationDirPath();
#else
    return QDir::homePath();
#endif
}

} // namespace quenfor
