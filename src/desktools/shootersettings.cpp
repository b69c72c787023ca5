#include "desktools/shootersettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"shooter"_s;
const QString kSection = u"Optionen"_s;
const QString kKey = u"txt_kill"_s;

} // namespace

QString defaultHuntPrefix() {
    return u"mDkCeP"_s;
}

QString loadHuntPrefix() {
    return SettingsStore(kApplication).value(kSection, kKey, defaultHuntPrefix());
}

bool saveHuntPrefix(const QString& prefix) {
    return SettingsStore(kApplication).setValue(kSection, kKey, prefix);
}

} // namespace quenfor
