#include "desktools/worktime.h"

#include "desktools/decimalnumber.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The day's difference is shown and stored with four decimals; the minutes with one.
constexpr int kHourDecimals = 4;
constexpr int kMinuteDecimals = 1;

QString notANumber(const QString& field, const QString& text) {
    return u"Im Feld „%1“ steht keine Zahl: „%2“. Bitte eine Zahl eingeben, z. B. 7 oder 7,5."_s.arg(field, text);
}

QString missingNumber(const QString& field) {
    return u"Im Feld „%1“ fehlt die Zahl."_s.arg(field);
}

// Reads one field; an empty optional field is 0. On failure `error` gets the message.
std::optional<double> fieldValue(const QString& text, const QString& field, bool required, QString& error) {
    if (text.trimmed().isEmpty()) {
        if (!required)
            return 0.0;
        error = missingNumber(field);
        return std::nullopt;
    }
    const std::optional<double> value = parseDecimal(text);
    if (!value)
        error = notANumber(field, text);
    return value;
}

} // namespace

WorkDayResult calculateWorkDay(const WorkDayInput& input) {
    struct Field {
        const QString& text;
        QString name;
        bool required;
    };
    const Field fields[] = {
        {input.arriveHour, u"kommt Stunde"_s, true}, {input.arriveMinute, u"kommt Minute"_s, false},
        {input.leaveHour, u"geht Stunde"_s, true},   {input.leaveMinute, u"geht Minute"_s, false},
        {input.pauseMinutes, u"Pause"_s, false},     {input.targetHours, u"Arbeitszeit"_s, true},
    };
    WorkDayResult result;
    double values[std::size(fields)] = {};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const std::optional<double> value =
            fieldValue(fields[i].text, fields[i].name, fields[i].required, result.error);
        if (!value)
            return result;
        values[i] = *value;
    }
    const double arrive = values[0] * 60 + values[1];
    const double leave = values[2] * 60 + values[3];
    const double worked = leave - arrive - values[4];
    const double difference = worked / 60 - values[5];
    result.ok = true;
    result.difference = formatDecimal(difference, kHourDecimals);
    // The colour follows the shown value: a difference that rounds to 0 is not red.
    result.negative = std::round(difference * 1e4) < 0;
    return result;
}

WorkWeekResult calculateWorkWeek(const WeekTexts& days) {
    WorkWeekResult result;
    double sum = 0;
    double minuteSum = 0;
    for (int i = 0; i < kWorkDays; ++i) {
        QString error;
        const std::optional<double> hours = fieldValue(days[i], weekdayNames()[i], false, error);
        if (!hours) {
            WorkWeekResult refused;
            refused.error = error;
            return refused;
        }
        const double minutes = *hours * 60;
        result.minutes[i] = formatDecimal(minutes, kMinuteDecimals);
        sum += *hours;
        minuteSum += minutes;
    }
    const double total = floorToHundredths(sum);
    result.ok = true;
    result.total = formatDecimal(total, 2);
    result.negative = total < 0;
    result.totalMinutes = formatDecimal(minuteSum, kMinuteDecimals);
    return result;
}

double floorToHundredths(double value) {
    const double hundredths = std::round(value * 100 * 1e6) / 1e6;
    return std::floor(hundredths) / 100;
}

const std::array<QString, kWorkDays>& weekdayNames() {
    static const std::array<QString, kWorkDays> names = {u"Montag"_s, u"Dienstag"_s, u"Mittwoch"_s, u"Donnerstag"_s,
                                                         u"Freitag"_s};
    return names;
}

std::optional<int> workdayIndex(const QDate& date) {
    const int day = date.dayOfWeek(); // Monday is 1
    if (day >= 1 && day <= kWorkDays)
        return day - 1;
    return std::nullopt;
}

QString weekendEntryQuestion(const QDate& date) {
    const QString day = date.dayOfWeek() == 6 ? u"Samstag"_s : u"Sonntag"_s;
    return u"Heute ist %1: die Woche hat nur Montag bis Freitag. Soll der Eintrag für heute bei Montag "
           u"eingetragen werden ?"_s.arg(day);
}

QString clearWeekQuestion() {
    return u"Wollen Sie wirklich alle Einträge löschen ?"_s;
}

} // namespace quenfor
