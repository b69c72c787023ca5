#include "desktools/viewersettings.h"

#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kViewerApplication = u"vistrel"_s;
const QString kViewerSection = u"Optionen"_s;
const QString kSchemeKey = u"Farbe"_s;
const QString kFolderKey = u"dir1"_s;
const QString kDriveKey = u"drive1"_s;

} // namespace

PictureViewerSettings loadPictureViewerSettings() {
    const SettingsStore store(kViewerApplication);
    return {store.value(kViewerSection, kSchemeKey, u"standard"_s),
            store.value(kViewerSection, kFolderKey, defaultFolder()),
            store.value(kViewerSection, kDriveKey, defaultDrive())};
}

bool storePictureViewerSettings(const PictureViewerSettings& settings) {
    SettingsStore store(kViewerApplication);
    bool ok = store.setValue(kViewerSection, kSchemeKey, settings.scheme);
    ok = store.setValue(kViewerSection, kFolderKey, settings.folder) && ok;
    return store.setValue(kViewerSection, kDriveKey, settings.drive) && ok;
}

} // namespace quenfor
