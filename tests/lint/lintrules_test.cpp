// Where the checks take their lists from, and what happens when one is missing.
#include "lintfixture.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace quenfor;
using linttest::Spot;

namespace {

class LintRulesTest : public ::testing::Test {
protected:
    QTemporaryDir data;

    void copyShipped(const QString& name) {
        ASSERT_TRUE(QFile::copy(linttest::shippedData() + u'/' + name, data.filePath(name))) << name.toStdString();
    }

    LintOptions options() const {
        LintOptions o;
        o.dataFolder = data.path();
        return o;
    }
};

TEST_F(LintRulesTest, MissingListsTurnTheirCheckOffAndSaySo) {
    const QStringList lines = {u"dispaly shade"_s, u"bell yes"_s, u"bell no"_s, u"mapkey(continued) x;"_s};
    const LintResult r = lintLines(lines, u"config.pro"_s, options());
    EXPECT_FALSE(r.complete);
    ASSERT_EQ(r.notes.size(), 2);
    EXPECT_TRUE(r.notes[0].contains(u"known_options.txt"_s)) << r.notes[0].toStdString();
    EXPECT_TRUE(r.notes[1].contains(u"repeatable_options.txt"_s)) << r.notes[1].toStdString();
    // The checks that need no list still run.
    EXPECT_EQ(linttest::spotsOf(r.findings), (QList<Spot>{{4, FindingKind::MapkeyChain}}));
}

TEST_F(LintRulesTest, KnowledgeBasePickerAndCategoriesAddNames) {
    copyShipped(u"repeatable_options.txt"_s);
    linttest::writeFile(data.filePath(u"known_options.txt"_s), "bell\n");
    // A company's own knowledge base: entries, indented descriptions and a record added by a user.
    linttest::writeFile(data.filePath(u"config_opts.txt"_s),
                        "firmen_option  yes | no \x96 eigene Option\r\n"
                        "  Beschreibung der Option\r\n"
                        "eigene_zweite wert\rDiese Erkl\xE4rung f\xFCgte ein Anwender an\r***\r\n");
    linttest::writeFile(data.filePath(u"quenfor.pro"_s), "picker_option 1\r\nmapkey x #y;\r\n");
    const QStringList lines = {
        u"bell no"_s,           u"FIRMEN_OPTION yes"_s, u"eigene_zweite x"_s,     u"picker_option 2"_s,
        u"color_windows all"_s, u"beschreibung der"_s,  u"diese erkl\u00e4rung"_s};
    const LintResult r = lintLines(lines, u"config.pro"_s, options());
    EXPECT_TRUE(r.complete);
    // color_windows comes from the category lists; German words of descriptions are no names.
    EXPECT_EQ(linttest::spotsOf(r.findings),
              (QList<Spot>{{6, FindingKind::UnknownOption}, {7, FindingKind::UnknownOption}}));

    // --kb: another knowledge base replaces the family's.
    LintOptions withKb = options();
    withKb.knowledgeBase = linttest::writeFile(data.filePath(u"anderes.txt"_s), "beschreibung x\r\n");
    const LintResult other = lintLines(lines, u"config.pro"_s, withKb);
    EXPECT_EQ(linttest::spotsOf(other.findings),
              (QList<Spot>{
                  {2, FindingKind::UnknownOption}, {3, FindingKind::UnknownOption}, {7, FindingKind::UnknownOption}}));
}

TEST_F(LintRulesTest, FamiliesWithoutNameListsSaySo) {
    copyShipped(u"repeatable_options.txt"_s);
    for (const QString& name : {u"farben.scl"_s, u"config.txt"_s, u"Config.Pro"_s}) {
        const LintResult r = lintLines({u"beliebiger_name 1"_s}, name, options());
        EXPECT_TRUE(r.complete) << name.toStdString();
        EXPECT_EQ(r.notes.size(), 1) << name.toStdString();
        EXPECT_TRUE(r.findings.isEmpty()) << name.toStdString();
    }
}

TEST_F(LintRulesTest, NameListsSkipCommentsAndTakeAnyLineEnd) {
    linttest::writeFile(data.filePath(u"known_options.txt"_s), "! Kommentar\r\nBell\r\n\r\nspin_center_display");
    linttest::writeFile(data.filePath(u"repeatable_options.txt"_s), "! nur diese\nBELL\n");
    const LintResult r = lintLines({u"bell yes"_s, u"bell no"_s, u"spin_center_display no"_s, u"kommentar"_s},
                                   u"config.pro"_s, options());
    EXPECT_EQ(linttest::spotsOf(r.findings), (QList<Spot>{{4, FindingKind::UnknownOption}}));
}

TEST(LintProgressTest, ReportsAndStops) {
    const QStringList lines(1000, u"bell no"_s);
    QList<int> seen;
    const LintResult done = lintLines(lines, u"config.pro"_s, linttest::shippedOptions(), [&](int percent) {
        seen.append(percent);
        return true;
    });
    EXPECT_FALSE(done.cancelled);
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.last(), 100);

    const LintResult stopped = lintLines(QStringList{u"dispaly x"_s}, u"config.pro"_s, linttest::shippedOptions(),
                                         [](int percent) { return percent < 50; });
    EXPECT_TRUE(stopped.cancelled);
    EXPECT_TRUE(stopped.findings.isEmpty());
}

} // namespace
