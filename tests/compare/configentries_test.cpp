// What a configuration file sets, read as the CAD system reads it.
#include "compare/configentries.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct Seen {
    QString key;
    QString value;
    int line;
    bool operator==(const Seen&) const = default;
};

std::vector<Seen> seen(const QStringList& lines) {
    std::vector<Seen> out;
    for (const ConfigEntry& e : configEntriesOf(lines))
        out.push_back({e.key.toString(), e.value.toString(), e.line});
    return out;
}

void PrintTo(const Seen& s, std::ostream* os) {
    *os << s.key.toStdString() << " = [" << s.value.toStdString() << "] @" << s.line;
}

} // namespace

TEST(ConfigEntries, CommentsBlanksAndStrayContinuationsSetNothing) {
    EXPECT_EQ(seen({u"! Firmenvorgabe"_s, u""_s, u"   "_s, u"\t"_s, u"  ! eingerückter Kommentar"_s,
                    u"mapkey(continued) #verwaist;"_s, u"bell no"_s}),
              (std::vector<Seen>{{u"bell"_s, u"no"_s, 7}}));
}

TEST(ConfigEntries, NamesFoldToLowerCaseValuesKeepTheirs) {
    const std::vector<ConfigEntry> entries = configEntriesOf(
        {u"  PRO_UNIT_LENGTH \t unit_MM  "_s, u"pro_format_dir C:\\Vorlagen\\ZZ - Zeichnung\\"_s, u"display_grid"_s});
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].key, u"pro_unit_length"_s);
    EXPECT_EQ(entries[1].key, u"pro_format_dir"_s);
    EXPECT_EQ(entries[0].name, u"PRO_UNIT_LENGTH"_s);
    EXPECT_EQ(entries[0].value, u"unit_MM"_s);
    EXPECT_EQ(entries[1].value, u"C:\\Vorlagen\\ZZ - Zeichnung\\"_s); // blanks inside and the last "\" stay
    EXPECT_EQ(entries[2].value, u""_s);
}

TEST(ConfigEntries, MapkeyContinuationsJoinIntoOneMacro) {
    const QStringList lines = {
        u"mapkey $F2 @MAPKEY_LABELAnsicht;\\"_s, u"mapkey(continued) ~ Command `ProCmdViewSpin`;\\"_s,
        u"mapkey(continued) ~ Activate `main_dlg` `Ok`;"_s, u"MAPKEY rf #x;"_s, u"mapkey_ohne_leerzeichen yes"_s};
    EXPECT_EQ(seen(lines), (std::vector<Seen>{
                               {u"mapkey $F2"_s,
                                u"@MAPKEY_LABELAnsicht;~ Command `ProCmdViewSpin`;~ Activate `main_dlg` `Ok`;"_s, 1},
                               {u"mapkey rf"_s, u"#x;"_s, 4},
                               {u"mapkey_ohne_leerzeichen"_s, u"yes"_s, 5},
                           }));
    // A continuation after another line no longer belongs to the mapkey.
    EXPECT_EQ(seen({u"mapkey a #x;\\"_s, u"bell no"_s, u"mapkey(continued) #y;"_s}),
              (std::vector<Seen>{{u"mapkey a"_s, u"#x;"_s, 1}, {u"bell"_s, u"no"_s, 2}}));
}

TEST(ConfigEntries, UnixLinesAreReadPieceByPieceUnderTheirLineNumber) {
    EXPECT_EQ(seen({u"bell no"_s, u"search_path a\nsearch_path b\n"_s, u"x 1"_s}),
              (std::vector<Seen>{{u"bell"_s, u"no"_s, 1},
                                 {u"search_path"_s, u"a"_s, 2},
                                 {u"search_path"_s, u"b"_s, 2},
                                 {u"x"_s, u"1"_s, 3}}));
}

TEST(ConfigEntries, ComparableValueIgnoresCaseAndBlankRuns) {
    EXPECT_EQ(comparableValue(u"C:\\PTC\\Teile  und\tNormteile"), comparableValue(u"c:\\ptc\\teile und normteile"));
    EXPECT_NE(comparableValue(u"unit_mm"), comparableValue(u"unit_inch"));
    EXPECT_NE(comparableValue(u"a b"), comparableValue(u"ab"));
    // The same rule without building the texts, umlauts included; a mapkey's macro stays exact.
    EXPECT_TRUE(sameSettingValue(EntryKind::Option, u"C:\\Größe  Teile", u"c:\\GRÖßE Teile"));
    EXPECT_FALSE(sameSettingValue(EntryKind::Option, u"C:\\Größe", u"C:\\Grösse"));
    EXPECT_FALSE(sameSettingValue(EntryKind::Option, u"a b", u"a bc"));
    EXPECT_FALSE(sameSettingValue(EntryKind::Mapkey, u"#Text;", u"#text;"));
}
