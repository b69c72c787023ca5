#include "knowledge/pathconvertersettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"Pfadolin"_s;
const QString kSection = u"Optionen"_s;
const QString kPathKey = u"txt_pfad"_s;

} // namespace

QString loadConverterPath() {
    return SettingsStore(kApplication).value(kSection, kPathKey, QString());
}

bool storeConverterPath(const QString& path) {
    return SettingsStore(kApplication).setValue(kSection, kPathKey, path);
}

} // namespace quenfor
