#include "testsupport.h"

#include "document/filefamily.h"
#include "document/linekind.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

TEST(LineKindTest, IsToldByTheRawStartOfTheLine) {
    using K = LineKind;
    const struct {
        QString line;
        LineKind kind;
    } cases[] = {
        {u"mapkey $F2 @MAPKEY_LABELsave;~ Command `ProCmdModelSave` ;"_s, K::Mapkey},
        {u"mapkey"_s, K::Mapkey},
        {u"mapkeys_are_six_letters yes"_s, K::Mapkey},
        {u"mapkey(continued) ~ Activate `main_dlg_cur` `psh_save`;"_s, K::Continuation},
        {u"mapkey(continued) "_s, K::Continuation},
        {u"mapkey(continued)~ Close"_s, K::Mapkey}, // without the blank it is a head
        {u"MAPKEY $F2 @MAPKEY_LABELsave;"_s, K::Option},
        {u" mapkey $F2 indented"_s, K::Option},
        {u"! Kommentar"_s, K::Comment},
        {u"!"_s, K::Comment},
        {u" ! not at the start"_s, K::Option},
        {u"browser_favorite Normen C:\\cad\\normen"_s, K::Favorite},
        {u"BROWSER_FAVORITE NORMEN"_s, K::Favorite},
        {u"Browser_Favorite Normen"_s, K::Option},
        {QString(), K::Blank},
        {u"    "_s, K::Blank},
        {u"\t"_s, K::Option}, // a tab is content for the CAD system
        {u"display_layer_color YES"_s, K::Option},
    };
    for (const auto& c : cases)
        EXPECT_EQ(classifyLine(c.line), c.kind) << c.line.toStdString();
}

TEST(FileFamilyTest, FollowsTheExactEndOfTheName) {
    using F = FamilyKind;
    const QString cfg = u"config_opts.txt"_s;
    const struct {
        QString name;
        FamilyKind kind;
        QString knowledgeBase;
        QString saveName;
        bool optionMenu;
    } cases[] = {
        {u"/home/cad/config.pro"_s, F::Config, cfg, u"config.pro"_s, true},
        {u"CONFIG.PRO"_s, F::Config, cfg, u"config.pro"_s, true},
        {u"config.sup"_s, F::Config, cfg, u"config.pro"_s, true},
        {u"CONFIG.SUP"_s, F::Config, cfg, u"config.pro"_s, true},
        {u"Search.pro"_s, F::Config, cfg, u"config.pro"_s, true},
        {u"Config.Pro"_s, F::None, {}, {}, true},
        {u"config.pro.3"_s, F::None, {}, {}, true},
        {u"syscol.Scl"_s, F::None, {}, {}, true},
        {u"noscl"_s, F::None, {}, {}, true},
        {u"din.dtl"_s, F::Dtl, u"dtl_opts.txt"_s, u"din.dtl"_s, false},
        {u"ISO.DTL"_s, F::Dtl, u"dtl_opts.txt"_s, u"din.dtl"_s, false},
        {u"a4_laser.pcf"_s, F::Pcf, u"pcf_opts.txt"_s, u"quen.pcf"_s, false},
        {u"A4.PCF"_s, F::Pcf, u"pcf_opts.txt"_s, u"quen.pcf"_s, false},
        {u"search.pro"_s, F::SearchPro, cfg, u"search.pro"_s, false}, // overrides the config family
        {u"SEARCH.PRO"_s, F::SearchPro, cfg, u"search.pro"_s, false},
        {u"syscol.scl"_s, F::Scl, cfg, u"config.pro"_s, true},
        {u"SYSCOL.SCL"_s, F::Scl, cfg, u"config.pro"_s, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        const FileFamily f = fileFamilyOf(c.name);
        EXPECT_EQ(f.kind, c.kind);
        EXPECT_EQ(f.knowledgeBaseFile, c.knowledgeBase);
        EXPECT_EQ(f.defaultSaveName, c.saveName);
        EXPECT_EQ(f.optionMenuEnabled, c.optionMenu);
        EXPECT_EQ(f.colorButtonVisible, c.kind == F::Scl);
        EXPECT_EQ(f.searchProFrameVisible, c.kind == F::SearchPro);
        EXPECT_EQ(f.categoryBoxVisible, c.kind == F::Config || c.kind == F::Scl);
        EXPECT_EQ(f.addFrameVisible, c.kind != F::SearchPro);
        EXPECT_EQ(f.pickerVisible, c.kind != F::None && c.kind != F::SearchPro);
        EXPECT_EQ(f.pickerList.isEmpty(), c.knowledgeBase.isEmpty());
        EXPECT_EQ(f.pickerLoadedStatus().isEmpty(), c.knowledgeBase.isEmpty());
    }
    const struct {
        QString name, picker, optionFile;
    } pickers[] = {{u"config.pro"_s, u"List2cfg"_s, u"quenfor.pro"_s},
                   {u"din.dtl"_s, u"List2dtl"_s, u"quenfor.dtl"_s},
                   {u"a4.pcf"_s, u"List2pcf"_s, u"quenfor.pcf"_s}};
    for (const auto& c : pickers) {
        EXPECT_EQ(fileFamilyOf(c.name).pickerList, c.picker);
        EXPECT_EQ(fileFamilyOf(c.name).optionListFile, c.optionFile);
        EXPECT_EQ(fileFamilyOf(c.name).pickerLoadedStatus(), c.optionFile + u" wurde gelesen"_s);
    }
}

} // namespace
} // namespace quenfor
