// The small calculators read what German users type and must give the tool's own results.
#include "../common/qstringprinting.h"
#include "desktools/decimalnumber.h"
#include "desktools/interpolation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(ParseDecimal, TakesCommaOrPointAndNothingElse) {
    const std::pair<QString, std::optional<double>> cases[] = {
        {u"2,5"_s, 2.5},
        {u"2.5"_s, 2.5},
        {u" -3 "_s, -3.0},
        {u"+4,"_s, 4.0},
        {u",5"_s, 0.5},
        {u"1.000"_s, 1.0},
        {u"007"_s, 7.0},
        {{}, std::nullopt},
        {u" "_s, std::nullopt},
        {u"1,2,3"_s, std::nullopt},
        {u"1.000,5"_s, std::nullopt},
        {u"1e5"_s, std::nullopt},
        {u"abc"_s, std::nullopt},
        {u","_s, std::nullopt},
        {u"-"_s, std::nullopt},
        {u"inf"_s, std::nullopt},
        {u"nan"_s, std::nullopt},
        {u"0x10"_s, std::nullopt},
        {QString(400, u'9'), std::nullopt}, // beyond double: not a number rather than infinity
    };
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(parseDecimal(text), expected);
    }
}

TEST(FormatNumbers, DecimalCommaNoTrailingZerosNoNegativeZero) {
    EXPECT_EQ(formatDecimal(-49.0 / 60 - 7, 4), u"-7,8167"_s);
    EXPECT_EQ(formatDecimal(5, 2), u"5"_s);
    EXPECT_EQ(formatDecimal(1.5, 2), u"1,5"_s);
    EXPECT_EQ(formatDecimal(-0.00001, 4), u"0"_s);
    EXPECT_EQ(formatGeneral(11.5), u"11,5"_s);
    EXPECT_EQ(formatGeneral(1.0 / 3), u"0,333333333333333"_s);
    EXPECT_EQ(formatGeneral(0.1 + 0.2), u"0,3"_s);
    EXPECT_EQ(formatGeneral(-0.0), u"0"_s);
    EXPECT_EQ(formatGeneral(1e20), u"1e+20"_s);
}

TEST(Interpolation, AddsTheDifferencesAsTheToolAlwaysHas) {
    struct Case {
        InterpolationInput input;
        QString b;
    };
    const Case cases[] = {
        // ((5 − 10) + (0 − 10)) ÷ (0 − 10) + 10; the textbook would give 5.
        {{u"0"_s, u"0"_s, u"10"_s, u"10"_s, u"5"_s}, u"11,5"_s},
        {{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"2,5"_s}, u"5,25"_s},
        {{u"1.5"_s, u"0"_s, u"0,5"_s, u"0"_s, u"0,5"_s}, u"0"_s},
        {{u"0"_s, u"0"_s, u"3"_s, u"0"_s, u"1"_s}, u"0,666666666666667"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.b.toStdString());
        const InterpolationResult result = interpolate(c.input);
        ASSERT_TRUE(result.ok) << result.error.toStdString();
        EXPECT_EQ(result.text, c.b);
    }
    EXPECT_DOUBLE_EQ(interpolationFormula(0, 0, 10, 10, 5), 11.5);
}

TEST(Interpolation, RefusesWithAReasonInsteadOfFailing) {
    const std::pair<InterpolationInput, QString> cases[] = {
        {{u"4"_s, u"1"_s, u"4"_s, u"2"_s, u"3"_s},
         u"x1 und x2 sind gleich: durch x1 − x2 = 0 kann nicht geteilt werden."_s},
        {{u"4,0"_s, u"1"_s, u"4.00"_s, u"2"_s, u"3"_s},
         u"x1 und x2 sind gleich: durch x1 − x2 = 0 kann nicht geteilt werden."_s},
        {{{}, u"1"_s, u"4"_s, u" "_s, u"3"_s}, u"Bitte zuerst ausfüllen: x1, y2."_s},
        {{{}, {}, {}, {}, {}}, u"Bitte zuerst ausfüllen: x1, y1, x2, y2, a."_s},
        {{u"1"_s, u"1,2,3"_s, u"4"_s, u"2"_s, u"3"_s}, u"Im Feld „y1“ steht keine Zahl: „1,2,3“."_s},
        {{u"0"_s, u"1"_s, u"1e-3"_s, u"0"_s, u"0"_s}, u"Im Feld „x2“ steht keine Zahl: „1e-3“."_s},
    };
    for (const auto& [input, error] : cases) {
        SCOPED_TRACE(error.toStdString());
        const InterpolationResult result = interpolate(input);
        EXPECT_FALSE(result.ok);
        EXPECT_TRUE(result.text.isEmpty());
        EXPECT_EQ(result.error, error);
    }
    // A huge quotient is refused rather than shown as "inf".
    const InterpolationResult huge =
        interpolate({u"0,"_s + QString(300, u'0') + u"1"_s, QString(300, u'9'), u"0"_s, u"0"_s, u"0"_s});
    EXPECT_FALSE(huge.ok);
    EXPECT_EQ(huge.error, u"Das Ergebnis ist zu groß, um es als Zahl anzuzeigen."_s);
}

TEST(NumberFilter, PointBecomesCommaOtherCharactersGo) {
    struct Case {
        QString typed;
        int cursor;
        QString text;
        int cursorAfter;
        bool refused;
    };
    const Case cases[] = {
        {u"2.5"_s, 2, u"2,5"_s, 2, false},
        {u"2,5"_s, 3, u"2,5"_s, 3, false},
        {u"12a"_s, 3, u"12"_s, 2, true},
        {u"-5"_s, 1, u"5"_s, 0, true}, // the filter has never let a minus through
        {u"1x2"_s, 2, u"12"_s, 1, true},
        {u"1 2 3"_s, 1, u"123"_s, 1, true},
        {u"٣"_s, 1, {}, 0, true}, // a digit of another script is no digit here
        {{}, 0, {}, 0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed.toStdString());
        const FilteredNumberText filtered = filterNumberText(c.typed, c.cursor);
        EXPECT_EQ(filtered.text, c.text);
        EXPECT_EQ(filtered.cursor, c.cursorAfter);
        EXPECT_EQ(filtered.refused, c.refused);
    }
    EXPECT_EQ(onlyNumbersMessage(), u"Bitte nur Zahlen eingeben."_s);
}

} // namespace
