// What changed between two versions of a config.pro: by meaning, not by line.
#include "compare/comparetexts.h"
#include "compare/configdiff.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QSet<QString> kRepeatable = {u"search_path"_s};

const QStringList kOld = {u"! config.pro Konstruktion, Stand März"_s,
                          u"pro_unit_length unit_mm"_s,
                          u"bell no"_s,
                          u"search_path C:\\ptc\\teile"_s,
                          u"search_path C:\\ptc\\normteile"_s,
                          u""_s,
                          u"mapkey $F2 @MAPKEY_LABELSpin;\\"_s,
                          u"mapkey(continued) ~ Command `ProCmdViewSpin`;"_s,
                          u"drawing_setup_file C:\\ptc\\din.dtl"_s};

QString report(const std::vector<DiffEntry>& diff) {
    QString out;
    for (const DiffEntry& d : diff)
        appendDiffText(out, d, u"A"_s, u"B"_s);
    return out;
}

} // namespace

TEST(ConfigDiff, OrderCaseCommentsBlankLinesAndMapkeySplitDoNotCount) {
    const QStringList reordered = {u"mapkey $F2 @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;"_s,
                                   u"DRAWING_SETUP_FILE   c:\\PTC\\din.dtl"_s,
                                   u"search_path C:\\ptc\\normteile"_s,
                                   u"! anderer Kommentar"_s,
                                   u"Bell NO"_s,
                                   u"search_path C:\\ptc\\teile"_s,
                                   u"pro_unit_length unit_mm"_s};
    EXPECT_TRUE(diffConfigs(kOld, reordered, kRepeatable).empty())
        << report(diffConfigs(kOld, reordered, kRepeatable)).toStdString();
    EXPECT_EQ(diffSummaryText({}), u"Keine Unterschiede: beide Dateien setzen dasselbe."_s);
}

TEST(ConfigDiff, AddedRemovedAndChangedOptionsAndMapkeys) {
    QStringList changed = kOld;
    changed[1] = u"pro_unit_length unit_inch"_s;                      // changed
    changed.removeAt(2);                                              // bell removed
    changed[6] = u"mapkey(continued) ~ Command `ProCmdViewRefit`;"_s; // macro changed
    changed.append(u"display_grid yes"_s);                            // added
    changed.append(u"mapkey $F3 #neu;"_s);                            // mapkey added
    const std::vector<DiffEntry> diff = diffConfigs(kOld, changed, kRepeatable);
    EXPECT_EQ(report(diff), u"- bell: no  (A:3)\n"
                            "+ display_grid: yes  (B:9)\n"
                            "~ mapkey $F2: @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`; → @MAPKEY_LABELSpin;~ "
                            "Command `ProCmdViewRefit`;  (A:7 → B:6)\n"
                            "+ mapkey $F3: #neu;  (B:10)\n"
                            "~ pro_unit_length: unit_mm → unit_inch  (A:2 → B:2)\n"_s);
    EXPECT_EQ(diffSummaryText(diff), u"2 hinzugefügt, 1 entfernt, 2 geändert"_s);
}

TEST(ConfigDiff, TheLastValueInAFileCounts) {
    // The CAD system reads a file to its end: an earlier, replaced line changes nothing.
    EXPECT_TRUE(diffConfigs({u"bell yes"_s, u"bell no"_s}, {u"bell no"_s}, kRepeatable).empty());
    const std::vector<DiffEntry> diff = diffConfigs({u"bell no"_s}, {u"bell no"_s, u"bell yes"_s}, kRepeatable);
    ASSERT_EQ(diff.size(), 1u);
    EXPECT_EQ(diff[0].lineB, 2);
    // A mapkey's macro types text: its case counts.
    EXPECT_EQ(diffConfigs({u"mapkey a #Text;"_s}, {u"mapkey a #text;"_s}, kRepeatable).size(), 1u);
}

TEST(ConfigDiff, RepeatableOptionsCompareTheirValuesAsAMultiset) {
    const QStringList a = {u"search_path C:\\a"_s, u"search_path C:\\b"_s, u"search_path C:\\b"_s};
    const QStringList b = {u"search_path C:\\c"_s, u"search_path C:\\B"_s, u"search_path C:\\a"_s};
    EXPECT_EQ(report(diffConfigs(a, b, kRepeatable)), u"- search_path: C:\\b  (A:3)\n"
                                                      "+ search_path: C:\\c  (B:1)\n"_s);
    // Without the list, search_path is one value like any other: the last lines are compared.
    EXPECT_EQ(report(diffConfigs(a, b, {})), u"~ search_path: C:\\b → C:\\a  (A:3 → B:3)\n"_s);
}

TEST(ConfigDiff, TsvKeepsItsColumnsWhateverTheValues) {
    const std::vector<DiffEntry> diff =
        diffConfigs({u"web_browser_homepage a\tb"_s}, {u"web_browser_homepage c"_s, u"mapkey k #x;"_s}, kRepeatable);
    QString tsv;
    for (const DiffEntry& d : diff)
        appendDiffTsv(tsv, d);
    EXPECT_EQ(tsv, u"added\tmapkey\tk\t\t#x;\t\t2\n"
                   "changed\toption\tweb_browser_homepage\ta^Ib\tc\t1\t1\n"_s);
}

// The differences point into the lines and joined macros they came from; they must stay
// readable after the files' lines are gone, also as copies (the compare window keeps them).
TEST(ConfigDiff, TheDifferencesOutliveTheLinesTheyCameFrom) {
    std::vector<DiffEntry> diff;
    {
        // Strings with buffers of their own, freed at the end of the block.
        const auto own = [](const char* text) { return QString::fromUtf8(text); };
        const QStringList a = {own("bell yes"), own("mapkey $F2 #alt;\\"), own("mapkey(continued) ~ Alt;"),
                               own("search_path C:\\a"), own("trail_dir C:\\weg")};
        const QStringList b = {own("BELL no"), own("mapkey $F2 #neu;\\"), own("mapkey(continued) ~ Neu;"),
                               own("search_path C:\\b"), own("mapkey $F3 #dazu;")};
        diff = diffConfigs(a, b, kRepeatable);
    }
    const std::vector<DiffEntry> copies = diff;
    diff.clear();
    EXPECT_EQ(report(copies), u"~ BELL: yes → no  (A:1 → B:1)\n"
                              "~ mapkey $F2: #alt;~ Alt; → #neu;~ Neu;  (A:2 → B:2)\n"
                              "+ mapkey $F3: #dazu;  (B:5)\n"
                              "- search_path: C:\\a  (A:4)\n"
                              "+ search_path: C:\\b  (B:4)\n"
                              "- trail_dir: C:\\weg  (A:5)\n"_s);
}

// Against a plain oracle: apply random edits to a file and check that exactly the edited single
// options are reported, whatever else is shuffled around them.
TEST(ConfigDiff, RandomEditsAreFoundExactly) {
    QRandomGenerator random(4711);
    for (int round = 0; round < 50; ++round) {
        QStringList a;
        for (int i = 0; i < 40; ++i)
            a.append(u"option_%1 wert_%2"_s.arg(i).arg(random.bounded(3)));
        QStringList b = a;
        QSet<int> edited;
        for (int k = 0; k < 5; ++k) {
            const int i = int(random.bounded(40));
            b[i] = u"option_%1 neu_%2"_s.arg(i).arg(round);
            edited.insert(i);
        }
        for (int k = 0; k < 20; ++k) // shuffle and add noise that means nothing
            b.swapItemsAt(int(random.bounded(40)), int(random.bounded(40)));
        b.insert(int(random.bounded(b.size())), u"! Kommentar"_s);
        b.insert(int(random.bounded(b.size())), u"   "_s);

        QSet<QString> reported;
        for (const DiffEntry& d : diffConfigs(a, b, kRepeatable)) {
            EXPECT_EQ(d.change, DiffChange::Changed);
            reported.insert(d.name);
        }
        QSet<QString> expected;
        for (const int i : edited)
            expected.insert(u"option_%1"_s.arg(i));
        EXPECT_EQ(reported, expected) << "round " << round;
    }
}
