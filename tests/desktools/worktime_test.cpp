// The planner's sums decide what a user tells the payroll; a hundredth lost to binary noise or a
// red mark on a balanced day would be taken as real.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "desktools/worktime.h"
#include "desktools/worktimesettings.h"
#include "settings/settingsstore.h"

#include <QSettings>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct DayCase {
    const char* label;
    WorkDayInput input;
    QString difference;
    bool negative;
};

TEST(WorkDay, DifferenceToTheTargetAndItsColour) {
    const DayCase cases[] = {
        // The defaults: 7:07 to 7:07 with a 49-minute pause against 7 hours.
        {"defaults", {u"7"_s, u"7"_s, u"7"_s, u"7"_s, u"49"_s, u"7"_s}, u"-7,8167"_s, true},
        {"balanced day", {u"8"_s, u"0"_s, u"16"_s, u"30"_s, u"30"_s, u"8"_s}, u"0"_s, false},
        {"overtime", {u"7"_s, u"30"_s, u"17"_s, u"15"_s, u"45"_s, u"8"_s}, u"1"_s, false},
        {"decimal comma and point", {u"7,5"_s, u"0"_s, u"16.25"_s, u"0"_s, u"30"_s, u"7,75"_s}, u"0,5"_s, false},
        {"empty minutes and pause count 0", {u"8"_s, {}, u"16"_s, u" "_s, {}, u"8"_s}, u"0"_s, false},
        // One minute short is negative; the shown value decides the colour.
        {"one minute short", {u"8"_s, u"1"_s, u"16"_s, u"0"_s, u"0"_s, u"8"_s}, u"-0,0167"_s, true},
        {"rounds to zero", {u"8"_s, u"0,001"_s, u"16"_s, u"0"_s, u"0"_s, u"8"_s}, u"0"_s, false},
    };
    for (const DayCase& c : cases) {
        SCOPED_TRACE(c.label);
        const WorkDayResult result = calculateWorkDay(c.input);
        ASSERT_TRUE(result.ok) << result.error.toStdString();
        EXPECT_EQ(result.difference, c.difference);
        EXPECT_EQ(result.negative, c.negative);
    }
}

TEST(WorkDay, NamesTheFieldThatHoldsNoNumber) {
    WorkDayInput input{u"8"_s, u"0"_s, u"16"_s, u"30"_s, u"30"_s, u"8"_s};
    input.pauseMinutes = u"halbe Stunde"_s;
    WorkDayResult result = calculateWorkDay(input);
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.difference.isEmpty());
    EXPECT_EQ(result.error,
              u"Im Feld „Pause“ steht keine Zahl: „halbe Stunde“. Bitte eine Zahl eingeben, z. B. 7 oder 7,5."_s);

    input.pauseMinutes = u"30"_s;
    input.arriveHour = QString();
    result = calculateWorkDay(input);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.error, u"Im Feld „kommt Stunde“ fehlt die Zahl."_s);

    input.arriveHour = u"8"_s;
    input.targetHours = u"1,2,3"_s;
    EXPECT_TRUE(calculateWorkDay(input).error.contains(u"„Arbeitszeit“"_s));
}

struct RoundingCase {
    double sum;
    double expected;
};

TEST(FloorToHundredths, RoundsDownWithoutBinaryNoise) {
    const RoundingCase cases[] = {
        {1.239, 1.23},    {-1.231, -1.24},
        {1.23, 1.23},                                           // 1.23 × 100 is 123.00000000000001
        {0.29, 0.29},                                           // 0.29 × 100 is 28.999999999999996
        {-0.29, -0.29},   {0.1 + 0.2 + 0.3 + 0.33 + 0.3, 1.23}, // the sum is 1.2299999999999998
        {1.005, 1.0},     {-0.001, -0.01},
        {0, 0},           {40.0, 40.0},
        {-7.8167, -7.82},
    };
    for (const RoundingCase& c : cases) {
        SCOPED_TRACE(c.sum);
        EXPECT_DOUBLE_EQ(floorToHundredths(c.sum), c.expected);
    }
}

TEST(WorkWeek, SumsHoursAndMinutes) {
    WorkWeekResult week = calculateWorkWeek({u"1"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s});
    ASSERT_TRUE(week.ok);
    EXPECT_EQ(week.minutes, (WeekTexts{u"60"_s, u"60"_s, u"60"_s, u"60"_s, u"60"_s}));
    EXPECT_EQ(week.total, u"5"_s);
    EXPECT_EQ(week.totalMinutes, u"300"_s);
    EXPECT_FALSE(week.negative);

    week = calculateWorkWeek({u"1,239"_s, {}, {}, {}, {}});
    EXPECT_EQ(week.total, u"1,23"_s);
    EXPECT_EQ(week.minutes[0], u"74,3"_s);
    EXPECT_EQ(week.minutes[1], u"0"_s);

    week = calculateWorkWeek({u"-1,231"_s, {}, {}, {}, {}});
    EXPECT_EQ(week.total, u"-1,24"_s);
    EXPECT_TRUE(week.negative);
    EXPECT_EQ(week.totalMinutes, u"-73,9"_s);

    // Values that are 1.23 together must not show 1.22.
    week = calculateWorkWeek({u"0,1"_s, u"0,2"_s, u"0,3"_s, u"0,33"_s, u"0,3"_s});
    EXPECT_EQ(week.total, u"1,23"_s);

    week = calculateWorkWeek({u"-7,8167"_s, u"0,5"_s, {}, {}, {}});
    EXPECT_EQ(week.total, u"-7,32"_s);
    EXPECT_TRUE(week.negative);

    week = calculateWorkWeek({u"1"_s, u"1"_s, u"x"_s, u"1"_s, u"1"_s});
    EXPECT_FALSE(week.ok);
    EXPECT_TRUE(week.total.isEmpty());
    EXPECT_EQ(week.error, u"Im Feld „Mittwoch“ steht keine Zahl: „x“. Bitte eine Zahl eingeben, z. B. 7 oder 7,5."_s);
}

TEST(Weekday, MondayToFridayHaveALabelTheWeekendNone) {
    const QDate monday(2026, 3, 2);
    ASSERT_EQ(monday.dayOfWeek(), 1);
    for (int i = 0; i < kWorkDays; ++i)
        EXPECT_EQ(workdayIndex(monday.addDays(i)), i);
    EXPECT_EQ(workdayIndex(monday.addDays(5)), std::nullopt);
    EXPECT_EQ(workdayIndex(monday.addDays(6)), std::nullopt);
    EXPECT_EQ(weekdayNames()[2], u"Mittwoch"_s);
    EXPECT_TRUE(weekendEntryQuestion(monday.addDays(5)).startsWith(u"Heute ist Samstag"_s));
    EXPECT_TRUE(weekendEntryQuestion(monday.addDays(6)).startsWith(u"Heute ist Sonntag"_s));
}

class WorkTimeStore : public StoreSandbox {};

TEST_F(WorkTimeStore, WritesAndReadsEveryKeyThePauseAsPauseMin) {
    WorkTimeSettings settings;
    settings.day = {u"8"_s, u"15"_s, u"16"_s, u"45"_s, u"30"_s, u"8"_s};
    settings.week = {u"0,5"_s, {}, u"-1"_s, u"2"_s, u"0"_s};
    ASSERT_TRUE(settings.save());

    const WorkTimeSettings read = WorkTimeSettings::load();
    EXPECT_EQ(read.day.arriveHour, u"8"_s);
    EXPECT_EQ(read.day.arriveMinute, u"15"_s);
    EXPECT_EQ(read.day.leaveHour, u"16"_s);
    EXPECT_EQ(read.day.leaveMinute, u"45"_s);
    EXPECT_EQ(read.day.pauseMinutes, u"30"_s);
    EXPECT_EQ(read.day.targetHours, u"8"_s);
    EXPECT_EQ(read.week, settings.week);

    QSettings ini(iniFile(u"Zeit"_s), QSettings::IniFormat);
    EXPECT_EQ(ini.value(u"Optionen/Pause_min"_s).toString(), u"30"_s);
    EXPECT_FALSE(ini.contains(u"Optionen/pause_min"_s));
    EXPECT_EQ(ini.value(u"Optionen/txt_woche(2)"_s).toString(), u"-1"_s);
}

TEST_F(WorkTimeStore, ReadsAPauseStoredUnderTheLowerCaseKey) {
    ASSERT_TRUE(SettingsStore(u"Zeit"_s).setValue(u"Optionen"_s, u"pause_min"_s, u"45"_s));
    EXPECT_EQ(WorkTimeSettings::load().day.pauseMinutes, u"45"_s);
}

} // namespace
