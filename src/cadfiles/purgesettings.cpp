#include "cadfiles/purgesettings.h"

#include "cadfiles/cleanpatterns.h"
#include "settings/settingsstore.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kPurgeApplication = u"DrFegel"_s;
const QString kPurgeSection = u"Optionen"_s;
const QString kPurgeFolderKey = u"dir1"_s;
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
    const SettingsStore store(kPurgeApplication);
    return {store.value(kPurgeSection, kPurgeFolderKey, defaultFolder()),
            store.value(kPurgeSection, kPatternsKey, defaultCleaningPatterns())};
}

bool PurgeSettings::save() const {
    SettingsStore store(kPurgeApplication);
    const bool folderSaved = store.setValue(kPurgeSection, kPurgeFolderKey, folder);
    return store.setValue(kPurgeSection, kPatternsKey, cleaningPatterns) && folderSaved;
}

} // namespace quenfor
