#include "cadfiles/purgesettings.h"

#include "cadfiles/cleanpatterns.h"
#include "settings/settingsstore.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"DrFegel"_s;
const QString kSection = u"Optionen"_s;
const QString kFolderKey = u"dir1"_s;
const QString kPatternsKey = u"txt_cleaningOptions"_s;

} // namespace

QString PurgeSettings::defaultFolder() {
#ifdef Q_OS_WIN
    return u"C:\\"_s;
#else
    return QDir::toNativeSeparators(QDir::homePath());
#endif
}

PurgeSettings PurgeSettings::load() {
    const SettingsStore store(kApplication);
    return {store.value(kSection, kFolderKey, defaultFolder()),
            store.value(kSection, kPatternsKey, defaultCleaningPatterns())};
}

bool PurgeSettings::save() const {
    SettingsStore store(kApplication);
    const bool folderSaved = store.setValue(kSection, kFolderKey, folder);
    return store.setValue(kSection, kPatternsKey, cleaningPatterns) && folderSaved;
}

} // namespace quenfor
