#include "desktools/viewersettings.h"

#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"vistrel"_s;
const QString kSection = u"Optionen"_s;
const QString kSchemeKey = u"Farbe"_s;
const QString kFolderKey = u"dir1"_s;
const QString kDriveKey = u"drive1"_s;

} // namespace

PictureViewerSettings loadPictureViewerSettings() {
    const SettingsStore store(kApplication);
    return {store.value(kSection, kSchemeKey, u"standard"_s), store.value(kSection, kFolderKey, defaultFolder()),
            store.value(kSection, kDriveKey, defaultDrive())};
}

bool storePictureViewerSettings(const PictureViewerSettings& settings) {
    SettingsStore store(kApplication);
    bool ok = store.setValue(kSection, kSchemeKey, settings.scheme);
    ok = store.setValue(kSection, kFolderKey, settings.folder) && ok;
    return store.setValue(kSection, kDriveKey, settings.drive) && ok;
}

} // namespace quenfor
