#include "desktools/netsendsettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kNetSendApplication = u"Rufpost"_s;
const QString kNetSendSection = u"Optionen"_s;

} // namespace

NetSendSettings loadNetSendSettings() {
    const SettingsStore store(kNetSendApplication);
    return {store.value(kNetSendSection, u"user"_s, u"myfriend"_s),
            store.value(kNetSendSection, u"Text1"_s, u"Text1"_s), store.value(kNetSendSection, u"Text2"_s, u"Text2"_s)};
}

bool storeNetSendSettings(const NetSendSettings& settings) {
    SettingsStore store(kNetSendApplication);
    bool ok = store.setValue(kNetSendSection, u"user"_s, settings.recipient);
    ok = store.setValue(kNetSendSection, u"Text1"_s, settings.message) && ok;
    return store.setValue(kNetSendSection, u"Text2"_s, settings.recipients) && ok;
}

} // namespace quenfor
