#include "settings/settingsreset.h"

#include "settings/settingsstore.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

QStringList resetApplications() {
    return {u"quenfor"_s, u"vistrel"_s, u"Skribb"_s, u"DrFegel"_s, u"Kauzblick"_s, u"Tastomat"_s, u"Pfadolin"_s};
}

QList<ResetFailure> resetAllSettings() {
    QList<ResetFailure> failures;
    for (const QString& application : resetApplications()) {
        QString errorText = SettingsStore(application).remove();
        if (!errorText.isEmpty()) {
            failures.append({application, std::move(errorText)});
        }
    }
    return failures;
}

QString resetQuestion() {
    return u"Programm-Einstellungen löschen ?"_s;
}

} // namespace quenfor
