#include "settings/userstore.h"

#include <QSettings>

#include <windows.h>

#include <shlwapi.h>

using namespace Qt::StringLiterals;

namespace quenfor::userstore {

std::unique_ptr<QSettings> open(const QString& organisation, const QString& application) {
    auto store = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, organisation, application);
    // Fallbacks would read HKEY_LOCAL_MACHINE and the organisation-wide key, which this program never writes.
    store->setFallbacksEnabled(false);
    return store;
}

QString location(const QString& organisation, const QString& application) {
    return open(organisation, application)->fileName();
}

int remove(const QString& organisation, const QString& application) {
    const QString key = u"Software\\"_s + organisation + u'\\' + application;
    const auto status = SHDeleteKeyW(HKEY_CURRENT_USER, reinterpret_cast<LPCWSTR>(key.utf16()));
    return static_cast<int>(status);
}

} // namespace quenfor::userstore
