#include "cadfiles/tastomatsettings.h"

#include "cadfiles/batchfilelist.h"
#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kTastomatApplication = u"Tastomat"_s;
const QString kOptions = u"Optionen"_s;
const QString kParameters = u"Parameter"_s;

// Earlier releases shipped "regenerieren" without saving and closing, and every close stored it.
// That stored default is taken for the current one; actions the user changed stay as they are.
bool isRetiredDefault(const QString& id, const QStringList& actions) {
    return id == u"regenerieren" &&
           actions == defaultActions(u"oeffnen"_s) + QStringList{u"~ Command `ProCmdRegenPart` ;"_s};
}

} // namespace

TastomatSettings loadTastomatSettings() {
    const SettingsStore store(kTastomatApplication);
    const BatchParameters defaults = defaultBatchParameters();
    TastomatSettings settings;
    settings.folder = store.value(kOptions, u"dir1"_s, defaultFolder());
    settings.patterns = store.value(kOptions, u"muster"_s, QString::fromUtf16(kDefaultBatchPatterns));
    settings.templateId = store.value(kOptions, u"vorlage"_s, defaults.templates.first().id);
    settings.targetFolder = store.value(kOptions, u"zielordner"_s, QString());

    BatchParameters& parameters = settings.parameters;
    parameters = defaults;
    const QString prefix = store.value(kParameters, u"praefix"_s, defaults.keyPrefix);
    if (checkKeyPrefix(prefix).isEmpty())
        parameters.keyPrefix = prefix;
    bool ok = false;
    const int first = store.value(kParameters, u"startnummer"_s, QString::number(defaults.firstNumber)).toInt(&ok);
    if (ok && first >= 0 && first <= kMaxFirstNumber)
        parameters.firstNumber = first;
    const QString collector = store.value(kParameters, u"sammeltaste"_s, QString());
    if (checkCollectorKey(collector).isEmpty())
        parameters.collectorKey = collector;
    for (MapkeyTemplate& tmpl : parameters.templates) {
        const QStringList actions =
            store.value(kParameters, tmpl.id, tmpl.actions.join(u'\n')).split(u'\n', Qt::SkipEmptyParts);
        if (checkActions(tmpl.name, actions).isEmpty() && !isRetiredDefault(tmpl.id, actions))
            tmpl.actions = actions;
    }
    return settings;
}

bool storeTastomatSettings(const TastomatSettings& settings) {
    SettingsStore store(kTastomatApplication);
    bool ok = store.setValue(kOptions, u"dir1"_s, settings.folder);
    ok = store.setValue(kOptions, u"muster"_s, settings.patterns) && ok;
    ok = store.setValue(kOptions, u"vorlage"_s, settings.templateId) && ok;
    ok = store.setValue(kOptions, u"zielordner"_s, settings.targetFolder) && ok;
    const BatchParameters& parameters = settings.parameters;
    ok = store.setValue(kParameters, u"praefix"_s, parameters.keyPrefix) && ok;
    ok = store.setValue(kParameters, u"startnummer"_s, QString::number(parameters.firstNumber)) && ok;
    ok = store.setValue(kParameters, u"sammeltaste"_s, parameters.collectorKey) && ok;
    for (const MapkeyTemplate& tmpl : parameters.templates)
        ok = store.setValue(kParameters, tmpl.id, tmpl.actions.join(u'\n')) && ok;
    return ok;
}

} // namespace quenfor
