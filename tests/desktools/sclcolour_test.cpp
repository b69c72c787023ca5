// The colour box turns the CAD system's percentages into RGB and back; a value off by one step
// or a line in the wrong layout gives a colour file the CAD system reads differently.
#include "../common/qstringprinting.h"
#include "desktools/sclcolour.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(SclColour, PercentToRgbRoundsToTheNearestStep) {
    const std::pair<double, int> cases[] = {
        {0, 0},         {100, 255},      {50, 128}, // 127.5 rounds up
        {7.058824, 18}, {19.607843, 50}, {0.196, 0}, {0.197, 1}, {-3, 0}, {250, 255},
    };
    for (const auto& [percent, rgb] : cases) {
        SCOPED_TRACE(percent);
        EXPECT_EQ(percentToRgb(percent), rgb);
    }
}

TEST(SclColour, RgbToPercentAndBackIsExactForEveryValue) {
    EXPECT_DOUBLE_EQ(rgbToPercent(0), 0);
    EXPECT_DOUBLE_EQ(rgbToPercent(255), 100);
    EXPECT_EQ(sclColourLine({}, {rgbToPercent(0), rgbToPercent(18), rgbToPercent(50)}),
              u"0.000000 7.058824 19.607843"_s);
    EXPECT_DOUBLE_EQ(rgbToPercent(300), 100);
    for (int value = 0; value <= 255; ++value) {
        // Through the six decimals of the file, as the CAD system would read it back.
        const double written = sclColourLine({}, {rgbToPercent(value), 0, 0}).section(u' ', 0, 0).toDouble();
        EXPECT_EQ(percentToRgb(written), value);
    }
}

TEST(SclColour, FieldsRefuseWhatIsNoValue) {
    struct Case {
        QString text;
        bool percent;
        std::optional<double> value;
        QString error;
    };
    const Case cases[] = {
        {u"7,058824"_s, true, 7.058824, {}},
        {u"100"_s, true, 100.0, {}},
        {u"0.5"_s, true, 0.5, {}},
        {u"100,01"_s, true, std::nullopt, u"Grün: Prozentwerte liegen zwischen 0 und 100."_s},
        {u"-1"_s, true, std::nullopt, u"Grün: Prozentwerte liegen zwischen 0 und 100."_s},
        {u"rot"_s, true, std::nullopt, u"Grün: „rot“ ist keine Zahl."_s},
        {{}, true, std::nullopt, u"Grün: „“ ist keine Zahl."_s},
        {u"255"_s, false, 255.0, {}},
        {u"0"_s, false, 0.0, {}},
        {u"256"_s, false, std::nullopt, u"Grün: RGB-Werte sind ganze Zahlen von 0 bis 255."_s},
        {u"12,5"_s, false, std::nullopt, u"Grün: RGB-Werte sind ganze Zahlen von 0 bis 255."_s},
        {u"#ff"_s, false, std::nullopt, u"Grün: „#ff“ ist keine Zahl."_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        const ChannelValue value =
            c.percent ? parsePercent(ColourChannel::Green, c.text) : parseRgb(ColourChannel::Green, c.text);
        EXPECT_EQ(value.value, c.value);
        EXPECT_EQ(value.error, c.error);
    }
    EXPECT_EQ(percentFieldText(rgbToPercent(18)), u"7,058824"_s);
    EXPECT_EQ(percentFieldText(100), u"100"_s);
}

TEST(SclColour, ReadsAndWritesColourLines) {
    std::optional<SclColourLine> line = parseSclColourLine(u"SYSTEM_BACKGROUND_COLOR 0.000000 7.058824 19.607843 "_s);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->name, u"SYSTEM_BACKGROUND_COLOR"_s);
    EXPECT_EQ(line->percent, (Percentages{0, 7.058824, 19.607843}));

    line = parseSclColourLine(u"  100.000000\t67.058824   0.000000"_s);
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->name.isEmpty());
    EXPECT_EQ(line->percent, (Percentages{100, 67.058824, 0}));

    for (const QString& text :
         {u"UI_TEXT_COLOR default"_s, u"USE_PRE_WILDFIRE_COLOR_SCHEME YES"_s, QString(),
          u"SYSTEM_LETTER_COLOR 100 100"_s, u"SYSTEM_LETTER_COLOR 255 0 0"_s, u"A B 1 2 3"_s, u"! 1 2 3 4"_s}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_FALSE(parseSclColourLine(text));
    }

    EXPECT_EQ(sclColourLine(u" SYSTEM_LETTER_COLOR "_s, {100, 100, 0}),
              u"SYSTEM_LETTER_COLOR 100.000000 100.000000 0.000000"_s);
    EXPECT_TRUE(checkColourName(u"SYSTEM_LETTER_COLOR"_s).isEmpty());
    EXPECT_TRUE(checkColourName({}).isEmpty());
    EXPECT_EQ(checkColourName(u"SYSTEM LETTER"_s), u"Der Farbname „SYSTEM LETTER“ darf keine Leerzeichen enthalten."_s);
}

} // namespace
