#include "desktools/netsendsettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kApplication = u"Rufpost"_s;
const QString kSection = u"Optionen"_s;

} // namespace

NetSendSettings loadNetSendSettings() {
    const SettingsStore store(kApplication);
    return {store.value(kSection, u"user"_s, u"myfriend"_s), store.value(kSection, u"Text1"_s, u"Text1"_s),
            store.value(kSection, u"Text2"_s, u"Text2"_s)};
}

bool storeNetSendSettings(const NetSendSettings& settings) {
    SettingsStore store(kApplication);
    bool ok = store.setValue(kSection, u"user"_s, settings.recipient);
    ok = store.setValue(kSection, u"Text1"_s, settings.message) && ok;
    return store.setValue(kSection, u"Text2"_s, settings.recipients) && ok;
}

} // namespace quenfor
