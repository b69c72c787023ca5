#include "settings/userstore.h"

#include "settings/inistore.h"

#include <QSettings>

namespace quenfor::userstore {

std::unique_ptr<QSettings> open(const QString& organisation, const QString& application) {
    // INI rather than the native format, so that macOS keeps a readable file as Linux does.
    auto store = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, organisation, application);
    // Fallbacks would read the organisation-wide and system-wide files, which this program never writes.
    store->setFallbacksEnabled(false);
    return store;
}

QString location(const QString& organisation, const QString& application) {
    return open(organisation, application)->fileName();
}

int remove(const QString& organisation, const QString& application) {
    return removeIniStore(location(organisation, application));
}

} // namespace quenfor::userstore
