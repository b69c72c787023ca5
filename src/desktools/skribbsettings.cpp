#include "desktools/skribbsettings.h"

#include "common/pathsplit.h"
#include "common/programfolders.h"
#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"
#include "settings/trailingseparator.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kSkribbApplication = u"Skribb"_s;
const QString kOptions = u"Optionen"_s;
// The check box was always read under one spelling and written under another; the Windows store
// ignores case, so both name one value. Elsewhere the store is case-sensitive: we write one
// spelling and read it first, and still take a value that only exists under the other.
const QString kExplainWritten = u"chkerklaer.Value"_s;
const QString kExplainRead = u"chkErklaer.Value"_s;
constexpr int kMaxTimeoutSeconds = 300;

} // namespace

SkribbSettings loadSkribbSettings() {
    const SettingsStore store(kSkribbApplication);
    SkribbSettings settings;
    settings.folder = store.value(kOptions, u"dir1"_s, defaultFolder());
    // A drive as a root ("C:\\", "/"), as the file boxes name it.
    settings.drive =
        store.value(kOptions, u"drive1"_s, withTrailingSeparator(QDir::toNativeSeparators(defaultDrive())));
    settings.filter = store.value(kOptions, u"Filter"_s, u"*.*"_s);
    const QString explain = store.value(kOptions, kExplainWritten, store.value(kOptions, kExplainRead, u"0"_s));
    settings.explain = explain.trimmed() == u"1";
    settings.colourWord = store.value(kOptions, u"lbl_schwarzweissblau"_s, u"blau"_s);
    return settings;
}

bool storeSkribbSettings(const SkribbSettings& settings) {
    SettingsStore store(kSkribbApplication);
    bool ok = store.setValue(kOptions, u"dir1"_s, settings.folder);
    ok = store.setValue(kOptions, u"drive1"_s, settings.drive) && ok;
    ok = store.setValue(kOptions, u"Filter"_s, settings.filter) && ok;
    ok = store.setValue(kOptions, kExplainWritten, settings.explain ? u"1"_s : u"0"_s) && ok;
    ok = store.setValue(kOptions, u"lbl_schwarzweissblau"_s, settings.colourWord) && ok;
    return ok;
}

QString translationEndpoint() {
    const QString stored =
        SettingsStore(kSkribbApplication).value(kOptions, u"Uebersetzungsdienst"_s, QString()).trimmed();
    return stored.isEmpty() ? QString::fromUtf16(kDefaultTranslationEndpoint) : stored;
}

int translationTimeoutSeconds() {
    bool ok = false;
    const int seconds =
        SettingsStore(kSkribbApplication).value(kOptions, u"Uebersetzungszeitlimit"_s, QString()).trimmed().toInt(&ok);
    return ok && seconds >= 1 && seconds <= kMaxTimeoutSeconds ? seconds : kDefaultTranslationTimeoutSeconds;
}

QString skribbHelpPage() {
    const QString stored = SettingsStore(kSkribbApplication).value(kOptions, u"Hilfeseite"_s, QString()).trimmed();
    return stored.isEmpty() ? joinFolderAndName(QDir::toNativeSeparators(programDataFolder()), u"skribb_hilfe.html")
                            : stored;
}

} // namespace quenfor
