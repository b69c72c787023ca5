#include "settings/colourschemes.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

struct SchemeCase {
    const char16_t* name;
    RgbColour text;
    RgbColour background;
};

// Names the case in test listings instead of dumping its bytes.
void PrintTo(const SchemeCase& c, std::ostream* os) {
    *os << QString::fromUtf16(c.name).toStdString();
}

class KnownScheme : public ::testing::TestWithParam<SchemeCase> {};

// The stored values are blue-green-red: &HFFFF80 is light cyan, &H800000 dark blue. Light text
// stands on the dark swatches, dark blue text on the white one.
TEST_P(KnownScheme, FixedColourIsTheTextOnTheSwatchColour) {
    const SchemeCase& expected = GetParam();
    const auto scheme = colourScheme(QString::fromUtf16(expected.name));
    ASSERT_TRUE(scheme.has_value());
    EXPECT_EQ(scheme->name, QString::fromUtf16(expected.name));
    EXPECT_EQ(scheme->text, expected.text);
    EXPECT_EQ(scheme->background, expected.background);
}

INSTANTIATE_TEST_SUITE_P(ThreeSchemes, KnownScheme,
                         ::testing::Values(SchemeCase{u"schwarz", {0x80, 0xFF, 0xFF}, {0x00, 0x00, 0x00}},
                                           SchemeCase{u"weiss", {0x00, 0x00, 0x80}, {0xFF, 0xFF, 0xFF}},
                                           SchemeCase{u"blau", {0x80, 0xFF, 0xFF}, {0x00, 0x00, 0x60}}),
                         [](const auto& info) { return QString::fromUtf16(info.param.name).toStdString(); });

TEST(ColourSchemes, OnlyTheThreeExactNames) {
    EXPECT_EQ(colourSchemeNames(), QStringList({u"schwarz"_s, u"weiss"_s, u"blau"_s}));
    for (const QString& name : {QString(), u"Weiss"_s, u"blau "_s, u"weiß"_s, u"rot"_s})
        EXPECT_FALSE(colourScheme(name).has_value()) << name.toStdString();
}

} // namespace
} // namespace quenfor
