// Values outside an option's allowed values, and options a chosen release does not know or hides:
// the rules on single facts, every shipped fact, and files written as administrators write them.
#include "knowledge/optionfacts.h"
#include "lint/valuecheck.h"
#include "lint/valuerule.h"
#include "lintfixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace quenfor;
using linttest::Spot;

namespace {

ValueRule ruleOf(const QString& defaultValue, const QString& allowed) {
    return ValueRule::of(OptionFact{defaultValue, allowed.split(u',', Qt::SkipEmptyParts)});
}

QList<LintFinding> findingsOf(const QStringList& lines, const QString& fileName = u"config.pro"_s,
                              const QString& release = {}) {
    LintOptions options = linttest::shippedOptions();
    options.release = release;
    return lintLines(lines, fileName, options).findings;
}

QList<LintFinding> ofKind(const QList<LintFinding>& findings, FindingKind kind) {
    QList<LintFinding> out;
    for (const LintFinding& f : findings) {
        if (f.kind == kind)
            out.append(f);
    }
    return out;
}

} // namespace

TEST(ValueRule, ShapeFollowsTheList) {
    const struct {
        const char* what;
        QString defaultValue;
        QString allowed;
        ValueShape shape;
    } cases[] = {
        {"keywords", u"no"_s, u"yes,no"_s, ValueShape::Words},
        {"numbers", u"100"_s, u"100,200,300,400"_s, ValueShape::Numbers},
        {"keyword and numbers", u"off"_s, u"off,2,4,8,16"_s, ValueShape::WordsAndNumbers},
        {"dotted keywords", u""_s, u"vrml2.0,vrml1.0"_s, ValueShape::Words},
        {"no list", u"0.0001"_s, u""_s, ValueShape::Unchecked},
        {"one example", u""_s, u"windows_print_manager"_s, ValueShape::Unchecked},
        {"path placeholder", u""_s, u"<path>,none"_s, ValueShape::Unchecked},
        {"free text", u""_s, u"any text,none"_s, ValueShape::Unchecked},
        {"default not listed", u"network ends"_s, u"ports,networkends"_s, ValueShape::Unchecked},
        {"default in other case", u"YES"_s, u"yes,no"_s, ValueShape::Words},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ruleOf(c.defaultValue, c.allowed).shape(), c.shape) << c.what;
}

TEST(ValueRule, ComparesAsTheCadSystemReads) {
    const ValueRule words = ruleOf(u"shade"_s, u"wireframe,hiddenvis,shade"_s);
    EXPECT_TRUE(words.allows(u"shade"));
    EXPECT_TRUE(words.allows(u"SHADE"));
    EXPECT_TRUE(words.allows(u"HiddenVis"));
    EXPECT_FALSE(words.allows(u"shaded"));
    EXPECT_FALSE(words.allows(u"1"));

    const ValueRule numbers = ruleOf(u"3"_s, u"1,2,3.0"_s);
    EXPECT_TRUE(numbers.allows(u"3"));
    EXPECT_TRUE(numbers.allows(u"2.0"));
    EXPECT_TRUE(numbers.allows(u"1e0"));
    EXPECT_FALSE(numbers.allows(u"4"));
    EXPECT_FALSE(numbers.allows(u"2.5"));
    EXPECT_FALSE(numbers.allows(u"zwei"));

    const ValueRule mixed = ruleOf(u"off"_s, u"off,2,4"_s);
    EXPECT_TRUE(mixed.allows(u"OFF"));
    EXPECT_TRUE(mixed.allows(u"4.0"));
    EXPECT_FALSE(mixed.allows(u"3"));
    EXPECT_FALSE(mixed.allows(u"on"));

    EXPECT_TRUE(ruleOf({}, u"windows_print_manager"_s).allows(u"lpr -P plotter"));
}

TEST(ValueRule, SuggestsTheListedValueWithinReachOfATypo) {
    const ValueRule display = ruleOf(u"shade"_s, u"wireframe,hiddenvis,hiddeninvis,shade,shadewithedges"_s);
    EXPECT_EQ(display.suggestionFor(u"Shaded"), u"shade"_s);
    EXPECT_EQ(display.suggestionFor(u"wirefame"), u"wireframe"_s);
    EXPECT_EQ(display.suggestionFor(u"hidenvis"), u"hiddenvis"_s);
    EXPECT_TRUE(display.suggestionFor(u"transparent").isEmpty());
    const ValueRule yesNo = ruleOf(u"no"_s, u"yes,no"_s);
    EXPECT_EQ(yesNo.suggestionFor(u"yse"), u"yes"_s);
    EXPECT_TRUE(yesNo.suggestionFor(u"ja").isEmpty()); // two letters leave room for one edit only
}

TEST(ValueCheck, TheWordTheListSpeaksOf) {
    EXPECT_EQ(checkedValueWord(u"layer_datum DATUM_EBENEN"), u"layer_datum"_s);
    EXPECT_EQ(checkedValueWord(u"yes\t! Kommentar"), u"yes"_s);
    EXPECT_TRUE(checkedValueWord(u"").isEmpty());
    EXPECT_TRUE(checkedValueWord(u"\"C:\\Program Files\\x\"").isEmpty());
    EXPECT_TRUE(checkedValueWord(u"$ANZEIGE").isEmpty());
    EXPECT_TRUE(checkedValueWord(u"${ANZEIGE}_x").isEmpty());
}

// Every shipped list of allowed values falls into a shape, and a checked one allows each value it
// lists and the option's own default: a correct file is never flagged for what the facts say.
TEST(ValueCheck, EveryShippedListParsesIntoAShape) {
    const OptionFacts& facts = OptionFacts::builtIn();
    ASSERT_GT(facts.size(), 1000);
    int listed = 0;
    int checked = 0;
    for (const QString& name : facts.names()) {
        const OptionFact& fact = *facts.find(name);
        const ValueRule rule = ValueRule::of(fact);
        if (fact.allowedValues.isEmpty()) {
            EXPECT_EQ(rule.shape(), ValueShape::Unchecked) << name.toStdString();
            continue;
        }
        ++listed;
        if (rule.shape() == ValueShape::Unchecked) {
            // Only lists that cannot be trusted as the whole choice stay unchecked.
            const bool single = fact.allowedValues.size() == 1;
            const bool defaultOutside =
                !fact.defaultValue.isEmpty() && !fact.allowedValues.contains(fact.defaultValue, Qt::CaseInsensitive);
            EXPECT_TRUE(single || defaultOutside) << name.toStdString();
            continue;
        }
        ++checked;
        for (const QString& value : fact.allowedValues) {
            EXPECT_TRUE(rule.allows(value)) << name.toStdString() << ' ' << value.toStdString();
            EXPECT_TRUE(rule.allows(value.toUpper())) << name.toStdString() << ' ' << value.toStdString();
        }
        if (!fact.defaultValue.isEmpty()) {
            EXPECT_TRUE(rule.allows(fact.defaultValue)) << name.toStdString();
        }
        EXPECT_FALSE(rule.allows(u"quenfor_kein_wert")) << name.toStdString();
        EXPECT_EQ(ValueRules::builtIn().find(name) != nullptr, true) << name.toStdString();
    }
    EXPECT_GT(listed, 1100);
    EXPECT_GT(checked, listed * 9 / 10);
}

// A company config as administrators write it: upper case, several words, numbers written
// differently, paths, environment variables, quotes and comments.
TEST(ValueCheck, CompanyConfig) {
    const QStringList lines = {
        u"! Firmenkonfiguration Konstruktion"_s,
        u"display shaded"_s,
        u"DISPLAY SHADE"_s,
        u"bell ja"_s,
        u"tol_display YES"_s,
        u"def_layer layer_datum DATUM_EBENEN"_s,
        u"def_layer layer_dtaum DATUM"_s,
        u"enable_fsaa 4"_s,
        u"enable_fsaa 3"_s,
        u"shade_quality 3.0"_s,
        u"raster_plot_dpi 150"_s,
        u"pro_unit_length unit_mm   "_s,
        u"pro_library_dir C:\\ptc\\bibliothek"_s,
        u"plotter_command lpr -P plotter1"_s,
        u"tangent_edge_display $KANTEN"_s,
        u"save_display \"yes\""_s,
        u"accuracy_lower_bound 0.0001"_s,
        u"mapkey sh @MAPKEY_LABELschattiert;~ Command `ProCmdViewShade`;"_s,
        u"tangent_edge_display"_s,
        u"tangent_edge_display dimmed\tdim"_s,
    };
    const QList<LintFinding> findings = ofKind(findingsOf(lines), FindingKind::InvalidValue);
    const QList<Spot> expected = {
        {linttest::lineOf(lines, u"display shaded"_s), FindingKind::InvalidValue},
        {linttest::lineOf(lines, u"bell ja"_s), FindingKind::InvalidValue},
        {linttest::lineOf(lines, u"def_layer layer_dtaum DATUM"_s), FindingKind::InvalidValue},
        {linttest::lineOf(lines, u"enable_fsaa 3"_s), FindingKind::InvalidValue},
        {linttest::lineOf(lines, u"raster_plot_dpi 150"_s), FindingKind::InvalidValue}};
    EXPECT_EQ(linttest::spotsOf(findings), expected);
    ASSERT_EQ(findings.size(), 5);
    EXPECT_EQ(findings[0].message, u"Wert \"shaded\" ist für display nicht erlaubt – erlaubt: wireframe, hiddenvis, "
                                   u"hiddeninvis, shade, shadewithreflect, shadewithedges; meinten Sie \"shade\"?"_s);
    EXPECT_EQ(findings[1].message, u"Wert \"ja\" ist für bell nicht erlaubt – erlaubt: yes, no"_s);
    // A long list is cut; the suggestion still comes from all of it.
    EXPECT_TRUE(findings[2].message.contains(u", …; meinten Sie \"layer_datum\"?"_s))
        << findings[2].message.toStdString();
    EXPECT_TRUE(findings[3].message.endsWith(u"erlaubt: off, 2, 4, 8, 16"_s)) << findings[3].message.toStdString();
}

TEST(ValueCheck, OnlyConfigFilesAndOnlyOptionLines) {
    // A drawing setup file has its own options; its values are not compared with config facts.
    EXPECT_TRUE(ofKind(findingsOf({u"display shaded"_s}, u"din.dtl"_s), FindingKind::InvalidValue).isEmpty());
    EXPECT_EQ(ofKind(findingsOf({u"bell ja"_s}, u"config.sup"_s), FindingKind::InvalidValue).size(), 1);
    // A line with Unix line ends is checked piece by piece and says which piece.
    const QList<LintFinding> pieces = ofKind(findingsOf({u"bell no\ndisplay shaded\n"_s}), FindingKind::InvalidValue);
    ASSERT_EQ(pieces.size(), 1);
    EXPECT_TRUE(pieces[0].message.endsWith(u" (Teilzeile 2)"_s)) << pieces[0].message.toStdString();
    EXPECT_TRUE(
        ofKind(findingsOf({u"  ! display shaded"_s, u"mapkey(continued) display shaded"_s}), FindingKind::InvalidValue)
            .isEmpty());
}

TEST(ReleaseCheck, OptionsTheTargetReleaseDoesNotKnowOrHides) {
    // 3d_datum_display_fill came with Creo Parametric 8.0; 18_plus was always hidden; bell always
    // documented; a misspelt name is the unknown-name check's business only.
    const QStringList lines = {u"bell no"_s, u"3d_datum_display_fill yes"_s, u"18_PLUS yes"_s, u"bel no"_s,
                               u"mapkey x @MAPKEY_LABELx;"_s};
    const QList<LintFinding> cp4 = findingsOf(lines, u"config.pro"_s, u"cp4"_s);
    EXPECT_EQ(linttest::spotsOf(cp4), (QList<Spot>{{2, FindingKind::UnknownInRelease},
                                                   {3, FindingKind::HiddenInRelease},
                                                   {4, FindingKind::UnknownOption}}));
    ASSERT_EQ(cp4.size(), 3);
    EXPECT_EQ(cp4[0].message, u"\"3d_datum_display_fill\" gibt es in Creo Parametric 4.0 nicht"_s);
    EXPECT_EQ(cp4[1].message, u"\"18_PLUS\" ist in Creo Parametric 4.0 eine versteckte Option: sie wirkt, ist aber "
                              u"nicht dokumentiert"_s);
    const QList<LintFinding> cp8 = findingsOf(lines, u"config.pro"_s, u"CP8"_s);
    EXPECT_EQ(linttest::spotsOf(cp8),
              (QList<Spot>{{3, FindingKind::HiddenInRelease}, {4, FindingKind::UnknownOption}}));
    // Without a target release nothing is said about releases.
    EXPECT_EQ(linttest::spotsOf(findingsOf(lines)), (QList<Spot>{{4, FindingKind::UnknownOption}}));
}

TEST(ReleaseCheck, DrawingSetupAndAnUnknownTargetRelease) {
    // all_holes_in_hole_table is a hidden drawing option since Creo Parametric 7.0.
    const QStringList dtl = {u"all_holes_in_hole_table YES"_s};
    EXPECT_EQ(linttest::spotsOf(findingsOf(dtl, u"din.dtl"_s, u"CP6"_s)),
              (QList<Spot>{{1, FindingKind::UnknownInRelease}}));
    EXPECT_EQ(linttest::spotsOf(findingsOf(dtl, u"din.dtl"_s, u"CP7"_s)),
              (QList<Spot>{{1, FindingKind::HiddenInRelease}}));
    // A plotter file has no release lists: nothing to say, nothing to complain about.
    EXPECT_TRUE(findingsOf({u"plotter_command lpr"_s}, u"a.pcf"_s, u"CP6"_s).isEmpty());

    LintOptions options = linttest::shippedOptions();
    options.release = u"Creo 6"_s;
    const LintResult result = lintLines({u"3d_datum_display_fill yes"_s}, u"config.pro"_s, options);
    EXPECT_TRUE(result.findings.isEmpty());
    ASSERT_EQ(result.notes.size(), 1);
    EXPECT_TRUE(result.notes[0].startsWith(u"Die Zielversion \"Creo 6\" ist unbekannt (bekannt sind WF4, CEP5"_s))
        << result.notes[0].toStdString();
}
