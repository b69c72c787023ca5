#include "../common/qstringprinting.h"
#include "cadfiles/findattributes.h"
#include "cadfiles/findpattern.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct PatternCase {
    QString pattern;
    QString name;
    bool matches;
};

class FindPatternTest : public ::testing::TestWithParam<PatternCase> {};

TEST_P(FindPatternTest, MatchesLikeTheWindowsDirectorySearch) {
    const PatternCase& c = GetParam();
    EXPECT_EQ(FindPattern(c.pattern).matches(c.name), c.matches)
        << c.pattern.toStdString() << " / " << c.name.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, FindPatternTest,
    ::testing::Values(
        // The CAD system's numbered versions.
        PatternCase{u"*.prt*"_s, u"bracket.prt.3"_s, true}, PatternCase{u"*.prt*"_s, u"BRACKET.PRT.12"_s, true},
        PatternCase{u"*.prt*"_s, u"bracket.prt"_s, true}, PatternCase{u"*.prt*"_s, u"bracket.asm.1"_s, false},
        PatternCase{u"*.prt*"_s, u"prt"_s, false}, PatternCase{u"*.prt"_s, u"bracket.prt.1"_s, false},
        PatternCase{u"*.drw*"_s, u"a.b.drw.2"_s, true},
        // "*.*" and "*" take everything, names without a dot included.
        PatternCase{u"*.*"_s, u"noextension"_s, true}, PatternCase{u"*.*"_s, u".hidden"_s, true},
        PatternCase{u"*"_s, u"a.b.c"_s, true},
        // "*." finds the names without any dot.
        PatternCase{u"*."_s, u"noextension"_s, true}, PatternCase{u"*."_s, u"a.b"_s, false},
        // A dot before "*" or at the end also stands for no dot at all.
        PatternCase{u"readme.*"_s, u"readme"_s, true}, PatternCase{u"readme.*"_s, u"readme.txt"_s, true},
        PatternCase{u"readme.*"_s, u"readmes"_s, false}, PatternCase{u"readme."_s, u"readme"_s, true},
        // "?" is one character, or none before a dot or at the end, and never the dot itself.
        PatternCase{u"a?.drw"_s, u"ab.drw"_s, true}, PatternCase{u"a?.drw"_s, u"a.drw"_s, true},
        PatternCase{u"a?.drw"_s, u"abc.drw"_s, false}, PatternCase{u"???"_s, u"ab"_s, true},
        PatternCase{u"???"_s, u"abcd"_s, false}, PatternCase{u"a?b"_s, u"a.b"_s, false},
        // "*" before a dot keeps the last dot for the rest of the pattern.
        PatternCase{u"*.b*"_s, u"x.b.c"_s, true}, PatternCase{u"*x"_s, u"a.x"_s, true},
        // Case never matters, umlauts included; other characters are literal.
        PatternCase{u"ÄPFEL.TXT"_s, u"äpfel.txt"_s, true}, PatternCase{u"a[1].prt"_s, u"a[1].prt"_s, true},
        PatternCase{u"a;b"_s, u"a"_s, false},
        // An empty pattern finds nothing.
        PatternCase{QString(), u"a"_s, false}, PatternCase{QString(), QString(), false}));

TEST(FindFileSizeTest, LowMinusHighInSigned32Bit) {
    struct Case {
        qint64 bytes;
        qint32 reported;
    };
    const Case cases[] = {
        {0, 0},
        {10, 10},
        {2147483647, 2147483647},
        {2147483648LL, -2147483647 - 1},           // 2 GiB: the low part is negative
        {4294967296LL + 10, 9},                    // 10 - 1
        {4294967296LL, -1},                        // 0 - 1
        {3 * 4294967296LL + 5, 2},                 // 5 - 3
        {4294967296LL + 2147483648LL, 2147483647}, // INT_MIN - 1 wraps
    };
    for (const Case& c : cases)
        EXPECT_EQ(findFileSize(c.bytes), c.reported) << c.bytes;
}

} // namespace
