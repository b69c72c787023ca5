#include "desktools/shootersettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kShooterApplication = u"shooter"_s;
const QString kShooterSection = u"Optionen"_s;
const QString kKey = u"txt_kill"_s;

} // namespace

QString defaultHuntPrefix() {
    return u"mDkCeP"_s;
}

QString loadHuntPrefix() {
    return SettingsStore(kShooterApplication).value(kShooterSection, kKey, defaultHuntPrefix());
}

bool saveHuntPrefix(const QString& prefix) {
    return SettingsStore(kShooterApplication).setValue(kShooterSection, kKey, prefix);
}

} // namespace quenfor
