// The rules of the single checks, case by case, on lines in memory.
#include "lint/conflictingvaluecheck.h"
#include "lint/lintline.h"
#include "lint/linttexts.h"
#include "lint/searchpropath.h"
#include "lintfixture.h"

using namespace Qt::StringLiterals;
using namespace quenfor;
using linttest::Spot;

namespace {

QList<Spot> spotsFor(const QStringList& lines, const QString& fileName = u"config.pro"_s) {
    return linttest::spotsOf(lintLines(lines, fileName, linttest::shippedOptions()).findings);
}

struct ChainCase {
    const char* name;
    QStringList lines;
    QList<int> brokenLines;
};

class MapkeyChainTest : public ::testing::TestWithParam<ChainCase> {};

TEST_P(MapkeyChainTest, FindsEveryBreak) {
    QList<Spot> expected;
    for (int line : GetParam().brokenLines)
        expected.append({line, FindingKind::MapkeyChain});
    EXPECT_EQ(spotsFor(GetParam().lines), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Chains, MapkeyChainTest,
    ::testing::Values(
        ChainCase{"Whole", {u"mapkey a #x;\\"_s, u"mapkey(continued) #y;\\"_s, u"mapkey(continued) #z;"_s}, {}},
        ChainCase{"BackslashBeforeBlanks", {u"mapkey a #x;\\ \t"_s, u"mapkey(continued) #y;"_s}, {}},
        ChainCase{"ContinuationWithoutHead", {u"bell no"_s, u"mapkey(continued) #y;"_s}, {2}},
        ChainCase{"ContinuationFirstLine", {u"mapkey(continued) #y;"_s}, {1}},
        ChainCase{"HeadWithoutBackslash", {u"mapkey a #x;"_s, u"mapkey(continued) #y;"_s}, {2}},
        ChainCase{"CommentInBetween", {u"mapkey a #x;\\"_s, u"! Kommentar"_s, u"mapkey(continued) #y;"_s}, {1, 3}},
        ChainCase{"BlankInBetween", {u"mapkey a #x;\\"_s, u""_s, u"mapkey(continued) #y;"_s}, {1, 3}},
        ChainCase{"NextHeadInstead", {u"mapkey a #x;\\"_s, u"mapkey b #y;"_s}, {1}},
        ChainCase{"LastLineAnnounces", {u"mapkey a #x;"_s, u"mapkey(continued) #y;\\"_s}, {2, 2}},
        // A folder path ends in "\" without announcing anything; upper-case MAPKEY is no mapkey line.
        ChainCase{"OptionEndingInBackslash", {u"pro_library_dir C:\\lib\\"_s, u"bell no"_s}, {}},
        ChainCase{"UpperCaseMapkey", {u"MAPKEY a #x;\\"_s, u"bell no"_s}, {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ConflictTest, NamesAndValuesIgnoreCaseAndBlankRuns) {
    const struct {
        const char16_t* a;
        const char16_t* b;
        bool same;
    } cases[] = {
        {u"yes", u"YES", true},   {u"C:\\ptc  \\lib", u"c:\\PTC \\LIB", true},
        {u"a b", u"ab", false},   {u"", u"", true},
        {u"", u"no", false},      {u"äöü", u"ÄÖÜ", true},
        {u"1.0", u"1.00", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sameOptionValue(c.a, c.b), c.same) << QString::fromUtf16(c.a).toStdString();

    // Each change is reported against the setting before it; a repeat of the same value is not.
    const QStringList lines = {u"bell yes"_s, u"BELL Yes"_s,      u"bell no"_s,
                               u"bell yes"_s, u"search_path a"_s, u"search_path b"_s};
    const LintResult r = lintLines(lines, u"config.pro"_s, linttest::shippedOptions());
    EXPECT_EQ(linttest::spotsOf(r.findings),
              (QList<Spot>{{3, FindingKind::ConflictingValue}, {4, FindingKind::ConflictingValue}}));
    EXPECT_TRUE(r.findings[1].message.contains(u"steht schon in Zeile 3"_s)) << r.findings[1].message.toStdString();
}

TEST(LintLineTest, PiecesOfUnixLinesKeepTheirDocumentLine) {
    const QStringList lines = {u"bell no"_s, u"a 1\nb 2\n\nc 3"_s, u"d\n"_s};
    const std::vector<LintLine> parsed = lintLinesOf(lines);
    ASSERT_EQ(parsed.size(), 6u);
    const struct {
        const char16_t* text;
        int line;
        int piece;
    } expected[] = {{u"bell no", 1, 0}, {u"a 1", 2, 1}, {u"b 2", 2, 2}, {u"", 2, 3}, {u"c 3", 2, 4}, {u"d", 3, 1}};
    for (size_t i = 0; i < parsed.size(); ++i) {
        EXPECT_EQ(parsed[i].text, QStringView(expected[i].text)) << i;
        EXPECT_EQ(parsed[i].line, expected[i].line) << i;
        EXPECT_EQ(parsed[i].piece, expected[i].piece) << i;
    }
    EXPECT_EQ(parsed[1].name, u"a"_s);
    EXPECT_EQ(parsed[1].value, u"1"_s);
}

TEST(SearchProPathTest, QuotesAndSpellings) {
    const struct {
        const char16_t* line;
        const char16_t* path;
        bool quoted;
        bool closed;
        const char16_t* trailing;
    } cases[] = {
        {u"  C:\\work  ", u"C:\\work", false, true, u""},         {u"\"C:\\my work\"", u"C:\\my work", true, true, u""},
        {u"\" C:\\my work \" ", u"C:\\my work", true, true, u""}, {u"\"C:\\my work", u"C:\\my work", true, false, u""},
        {u"\"C:\\my work\"x ", u"C:\\my work", true, true, u"x"},
    };
    for (const auto& c : cases) {
        const SearchProPath p = searchProPathOf(c.line);
        EXPECT_EQ(p.path, QStringView(c.path)) << QString::fromUtf16(c.line).toStdString();
        EXPECT_EQ(p.quoted, c.quoted);
        EXPECT_EQ(p.closed, c.closed);
        EXPECT_EQ(p.trailing, QStringView(c.trailing));
    }
    EXPECT_EQ(folderKey(u"C:\\Work\\"), folderKey(u"c:/work"));
    EXPECT_EQ(folderKey(u"C:\\"), u"c:\\"_s);
    EXPECT_NE(folderKey(u"C:\\work"), folderKey(u"C:\\work2"));
}

TEST(LintTextTest, CountsAndFileText) {
    EXPECT_EQ(findingCountText(0), u"Keine Befunde."_s);
    EXPECT_EQ(findingCountText(1), u"1 Befund"_s);
    EXPECT_EQ(findingCountText(1194289), u"1.194.289 Befunde"_s);
    EXPECT_EQ(shownText(u"a\tb\x7f"), u"a^Ib^?"_s);
    EXPECT_EQ(shownText(u"abcdef", 3), u"abc..."_s);
}

// A search.pro holds folders, not options: no option names are looked up, no values compared.
TEST(SearchProTest, NoOptionChecks) {
    EXPECT_EQ(spotsFor({u"C:\\work"_s, u"D:\\work"_s, u"dispaly"_s}, u"search.pro"_s), QList<Spot>());
}

} // namespace
