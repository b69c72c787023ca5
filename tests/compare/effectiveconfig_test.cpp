// Which file wins: a company config.sup, a site config.pro and a user's config.pro, as the CAD
// system loads them; and the marks the main list shows for one of the files.
#include "compare/effectiveconfig.h"
#include "compare/linemarks.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QSet<QString> kRepeatable = {u"search_path"_s, u"browser_favorite"_s};

const ConfigSource kSup = {u"/firma/config.sup"_s,
                           {u"! Vorgaben der Firma, nicht änderbar"_s, u"pro_unit_length unit_mm"_s,
                            u"drawing_setup_file C:\\ptc\\firma\\din.dtl"_s, u"search_path C:\\ptc\\normteile"_s,
                            u"mapkey $F5 #firma;"_s},
                           true};
const ConfigSource kSite = {u"/standort/config.pro"_s,
                            {u"PRO_UNIT_LENGTH unit_inch"_s, u"bell yes"_s, u"search_path C:\\ptc\\standort"_s,
                             u"display shade"_s, u"mapkey $F2 #standort;"_s},
                            false};
const ConfigSource kUser = {u"/home/anna/config.pro"_s,
                            {u"bell no"_s, u"display wireframe"_s, u"Display hiddenvis"_s,
                             u"search_path C:\\ptc\\anna"_s, u"mapkey $F2 #anna;"_s, u"mapkey $F5 #anna;"_s},
                            false};

const EffectiveSetting& settingOf(const EffectiveConfig& c, const QString& key) {
    for (const EffectiveSetting& s : c.settings) {
        if (s.key == key)
            return s;
    }
    throw std::runtime_error("no setting " + key.toStdString());
}

std::vector<std::pair<int, int>> places(const std::vector<SettingPlace>& list) {
    std::vector<std::pair<int, int>> out;
    for (const SettingPlace& p : list)
        out.emplace_back(p.file, p.line);
    return out;
}

using Places = std::vector<std::pair<int, int>>;

} // namespace

TEST(EffectiveConfig, ConfigSupIsReadFirstAndLocksWhatItSets) {
    // Given after the config.pro files, the config.sup is still read first.
    const std::vector<ConfigSource> sources = {kSite, kUser, kSup};
    const EffectiveConfig c = effectiveConfig(sources, kRepeatable);
    EXPECT_EQ(c.loadOrder, (std::vector<int>{2, 0, 1}));

    const EffectiveSetting& unit = settingOf(c, u"pro_unit_length"_s);
    EXPECT_TRUE(unit.locked);
    EXPECT_EQ(unit.inEffect.front().value, u"unit_mm"_s);
    EXPECT_EQ(places(unit.inEffect), (Places{{2, 2}}));
    EXPECT_EQ(places(unit.refused), (Places{{0, 1}})); // the site's attempt, whatever its case
    EXPECT_TRUE(unit.overridden.empty());

    // Setting the config.sup's own value again tries to change nothing.
    const EffectiveConfig same = effectiveConfig({kSup, {u"a.pro"_s, {u"pro_unit_length  UNIT_MM"_s}, false}}, {});
    EXPECT_TRUE(settingOf(same, u"pro_unit_length"_s).refused.empty());

    // A mapkey of the config.sup is locked as well; the user's own mapkey on other keys is not.
    EXPECT_EQ(places(settingOf(c, u"mapkey $F5"_s).refused), (Places{{1, 6}}));
    EXPECT_EQ(settingOf(c, u"mapkey $F5"_s).inEffect.front().value, u"#firma;"_s);
}

TEST(EffectiveConfig, LaterFilesAndLinesReplaceEarlierOnes) {
    const EffectiveConfig c = effectiveConfig({kSup, kSite, kUser}, kRepeatable);
    const EffectiveSetting& display = settingOf(c, u"display"_s);
    EXPECT_FALSE(display.locked);
    EXPECT_EQ(display.inEffect.front().value, u"hiddenvis"_s);
    EXPECT_EQ(places(display.inEffect), (Places{{2, 3}}));
    EXPECT_EQ(places(display.overridden), (Places{{1, 4}, {2, 2}}));

    EXPECT_EQ(settingOf(c, u"bell"_s).inEffect.front().value, u"no"_s);
    EXPECT_EQ(settingOf(c, u"mapkey $F2"_s).inEffect.front().value, u"#anna;"_s);
    EXPECT_EQ(places(settingOf(c, u"mapkey $F2"_s).overridden), (Places{{1, 5}}));
}

TEST(EffectiveConfig, RepeatableOptionsCollectAcrossFilesConfigSupIncluded) {
    const EffectiveConfig c = effectiveConfig({kSup, kSite, kUser}, kRepeatable);
    const EffectiveSetting& path = settingOf(c, u"search_path"_s);
    EXPECT_TRUE(path.collects);
    EXPECT_FALSE(path.locked);
    EXPECT_EQ(places(path.inEffect), (Places{{0, 4}, {1, 3}, {2, 4}}));
    EXPECT_TRUE(path.overridden.empty());
    EXPECT_TRUE(path.refused.empty());

    // Not in the list: the later value wins, even for a name that often repeats.
    const EffectiveConfig single = effectiveConfig({kSup, kSite, kUser}, {});
    EXPECT_EQ(places(settingOf(single, u"search_path"_s).refused), (Places{{1, 3}, {2, 4}}));
}

TEST(EffectiveConfig, SettingsComeSortedByName) {
    const EffectiveConfig c = effectiveConfig({kSup, kSite, kUser}, kRepeatable);
    QStringList keys;
    for (const EffectiveSetting& s : c.settings)
        keys.append(s.key.toString());
    EXPECT_EQ(keys, (QStringList{u"bell"_s, u"display"_s, u"drawing_setup_file"_s, u"mapkey $F2"_s, u"mapkey $F5"_s,
                                 u"pro_unit_length"_s, u"search_path"_s}));
}

TEST(LineMarks, TheOpenFileLearnsWhichOfItsLinesHaveNoEffect) {
    const std::vector<ConfigSource> sources = {kSup, kUser};
    const EffectiveConfig c = effectiveConfig(sources, kRepeatable);
    const QHash<int, LineMark> marks = lineMarksOf(c, sources, 1);
    // Line 2 (display wireframe) is replaced by line 3; mapkey $F5 (line 6) is locked.
    EXPECT_EQ(marks.size(), 2);
    ASSERT_TRUE(marks.contains(1));
    EXPECT_EQ(marks[1].kind, LineMark::Kind::Overridden);
    EXPECT_EQ(
        marks[1].explanation,
        u"überschrieben: es gilt \"display hiddenvis\" (config.pro, Zeile 3). Diese Zeile bleibt ohne Wirkung."_s);
    ASSERT_TRUE(marks.contains(5));
    EXPECT_EQ(marks[5].kind, LineMark::Kind::Locked);
    EXPECT_EQ(marks[5].explanation, u"gesperrt durch config.sup: dort steht \"mapkey $F5 #firma;\" (config.sup, Zeile "
                                    u"5). Diese Zeile bleibt ohne Wirkung."_s);
    // The config.sup's own lines are all in effect.
    EXPECT_TRUE(lineMarksOf(c, sources, 0).isEmpty());
}
