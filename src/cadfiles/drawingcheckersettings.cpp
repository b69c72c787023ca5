#include "cadfiles/drawingcheckersettings.h"

#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kCheckerApplication = u"Kauzblick"_s;
const QString kCheckerSection = u"Optionen"_s;
const QString kCheckerFolderKey = u"dir1"_s;
const QString kDriveKey = u"drive1"_s;

} // namespace

DrawingCheckerSettings loadDrawingCheckerSettings() {
    const SettingsStore store(kCheckerApplication);
    return {store.value(kCheckerSection, kCheckerFolderKey, defaultFolder()),
            store.value(kCheckerSection, kDriveKey, defaultDrive())};
}

bool storeDrawingCheckerSettings(const DrawingCheckerSettings& settings) {
    SettingsStore store(kCheckerApplication);
    const bool folderStored = store.setValue(kCheckerSection, kCheckerFolderKey, settings.folder);
    return store.setValue(kCheckerSection, kDriveKey, settings.drive) && folderStored;
}

} // namespace quenfor
