#include "cadfiles/drawingcheckersettings.h"

#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"Kauzblick"_s;
const QString kSection = u"Optionen"_s;
const QString kFolderKey = u"dir1"_s;
const QString kDriveKey = u"drive1"_s;

} // namespace

DrawingCheckerSettings loadDrawingCheckerSettings() {
    const SettingsStore store(kApplication);
    return {store.value(kSection, kFolderKey, defaultFolder()), store.value(kSection, kDriveKey, defaultDrive())};
}

bool storeDrawingCheckerSettings(const DrawingCheckerSettings& settings) {
    SettingsStore store(kApplication);
    const bool folderStored = store.setValue(kSection, kFolderKey, settings.folder);
    return store.setValue(kSection, kDriveKey, settings.drive) && folderStored;
}

} // namespace quenfor
