#pragma once

#include <QDate>
#include <QString>

#include <array>
#include <optional>

namespace quenfor {

// The fields of one working day as the user typed them: hours and minutes of arrival and leaving,
// the pause in minutes and the daily target in hours.
struct WorkDayInput {
    QString arriveHour;   // kommt_h
    QString arriveMinute; // kommt_min
    QString leaveHour;    // geht_h
    QString leaveMinute;  // geht_min
    QString pauseMinutes; // pause_min
    QString targetHours;  // Arbeitszeit
};

// diff_h: how far the day lies above or below the target. `error` names the field that holds no
// number; the other members are then empty.
struct WorkDayResult {
    bool ok = false;
    QString difference; // hours, up to four decimals
    bool negative = false;
    QString error;
};

// Worked minutes = leaving − arrival − pause; the difference is worked ÷ 60 − target. Empty
// minute and pause fields count as 0; the hours and the target must be given.
WorkDayResult calculateWorkDay(const WorkDayInput& input);

inline constexpr int kWorkDays = 5; // Monday to Friday
using WeekTexts = std::array<QString, kWorkDays>;

// The week: each day's hours also in minutes (lbl_Minuten), the total in hours rounded down to
// hundredths (gesamt) and in minutes (lbl_gesamtmin). Empty day fields count as 0.
struct WorkWeekResult {
    bool ok = false;
    WeekTexts minutes;
    QString total;
    bool negative = false;
    QString totalMinutes;
    QString error;
};
WorkWeekResult calculateWorkWeek(const WeekTexts& days);

// The sum × 100 rounded toward minus infinity, ÷ 100. The product is first rounded to a millionth,
// so that binary noise (1.23 stored as 1.2299999999999998) does not cost a whole hundredth.
double floorToHundredths(double value);

// "Montag" … "Freitag": the captions of the five day labels.
const std::array<QString, kWorkDays>& weekdayNames();

// The day label that today's entry goes to: Monday … Friday give 0 … 4; Saturday and Sunday
// have none.
std::optional<int> workdayIndex(const QDate& date);

// What the window asks before today's entry on a Saturday or Sunday goes to Monday, where it
// would replace what Monday holds.
QString weekendEntryQuestion(const QDate& date);

// The question before all five day fields are cleared.
QString clearWeekQuestion();

} // namespace quenfor
