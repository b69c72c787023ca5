#include "knowledge/pathconvertersettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kPathConverterApplication = u"Pfadolin"_s;
const QString kPathConverterSection = u"Optionen"_s;
const QString kPathKey = u"txt_pfad"_s;

} // namespace

QString loadConverterPath() {
    return SettingsStore(kPathConverterApplication).value(kPathConverterSection, kPathKey, QString());
}

bool storeConverterPath(const QString& path) {
    return SettingsStore(kPathConverterApplication).setValue(kPathConverterSection, kPathKey, path);
}

} // namespace quenfor
