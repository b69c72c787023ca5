#include "settings/inistore.h"

#include <QFile>
#include <QSettings>

#include <cerrno>
#include <cstdio>

namespace quenfor {

std::unique_ptr<QSettings> openIniStore(const QString& file) {
    auto store = std::make_unique<QSettings>(file, QSettings::IniFormat);
    store->setFallbacksEnabled(false);
    return store;
}

int removeIniStore(const QString& file) {
    // Only the file is deleted, no QSettings::clear() first: when the file cannot be deleted the
    // pending clear would stay in Qt's cache and show an empty store that is still full on disk.
    // Qt reads a cached INI file again once its size changed, so after the deletion it is empty.
    errno = 0;
    if (std::remove(QFile::encodeName(file).constData()) != 0) {
        return errno;
    }
    return 0;
}

} // namespace quenfor
