#include "desktools/worktimesettings.h"

#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kWorkTimeApplication = u"Zeit"_s;
const QString kWorkTimeSection = u"Optionen"_s;
// The pause is read as "pause_min" and has always been written as "Pause_min"; the Windows store
// does not tell the two apart, an INI file does, so reading tries the written spelling first.
const QString kPauseWritten = u"Pause_min"_s;
const QString kPauseRead = u"pause_min"_s;
const QString kSeven = u"7"_s;

struct DayKey {
    QString WorkDayInput::*field;
    QString key;
    QString defaultValue;
};

const DayKey kDayKeys[] = {
    {&WorkDayInput::targetHours, u"Arbeitszeit"_s, kSeven}, {&WorkDayInput::arriveHour, u"kommt_h"_s, kSeven},
    {&WorkDayInput::arriveMinute, u"kommt_min"_s, kSeven},  {&WorkDayInput::leaveHour, u"geht_h"_s, kSeven},
    {&WorkDayInput::leaveMinute, u"geht_min"_s, kSeven},
};

QString weekKey(int day) {
    return u"txt_woche(%1)"_s.arg(day);
}

} // namespace

WorkTimeSettings WorkTimeSettings::load() {
    const SettingsStore store(kWorkTimeApplication);
    WorkTimeSettings settings;
    settings.day.pauseMinutes =
        store.value(kWorkTimeSection, kPauseWritten, store.value(kWorkTimeSection, kPauseRead, u"49"_s));
    for (const DayKey& key : kDayKeys)
        settings.day.*key.field = store.value(kWorkTimeSection, key.key, key.defaultValue);
    for (int day = 0; day < kWorkDays; ++day)
        settings.week[day] = store.value(kWorkTimeSection, weekKey(day), u"1"_s);
    return settings;
}

bool WorkTimeSettings::save() const {
    SettingsStore store(kWorkTimeApplication);
    bool saved = store.setValue(kWorkTimeSection, kPauseWritten, day.pauseMinutes);
    for (const DayKey& key : kDayKeys)
        saved = store.setValue(kWorkTimeSection, key.key, day.*key.field) && saved;
    for (int i = 0; i < kWorkDays; ++i)
        saved = store.setValue(kWorkTimeSection, weekKey(i), week[i]) && saved;
    return saved;
}

} // namespace quenfor
