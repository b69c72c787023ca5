#include "settings/colourschemes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

// Stored colours are blue-green-red: the lowest byte is red.
TEST(ColourSchemes, StoredColoursReadBlueGreenRed) {
    EXPECT_EQ(rgbFromBgr(0xFFFF80), (RgbColour{0x80, 0xFF, 0xFF}));
    EXPECT_EQ(rgbFromBgr(0x800000), (RgbColour{0x00, 0x00, 0x80}));
}

// Every offered name leads to its scheme, with text that stands out from its background; any
// other spelling leads nowhere.
TEST(ColourSchemes, OfferedNamesResolveAndOnlyThey) {
    for (const QString& name : colourSchemeNames()) {
        const auto scheme = colourScheme(name);
        ASSERT_TRUE(scheme.has_value()) << name.toStdString();
        EXPECT_EQ(scheme->name, name);
        EXPECT_NE(scheme->text, scheme->background) << name.toStdString();
    }
    for (const QString& name : {QString(), u"Weiss"_s, u"blau "_s, u"weiß"_s, u"rot"_s})
        EXPECT_FALSE(colourScheme(name).has_value()) << name.toStdString();
}

} // namespace
} // namespace quenfor
