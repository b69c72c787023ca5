// doit.pro is loaded by the CAD system as a config file: a line over 98 characters, a broken
// continuation or two mapkeys on one key make the whole batch run fail on the workstation.
#include "../common/qstringprinting.h"
#include "cadfiles/batchmapkeys.h"
#include "knowledge/mapkeytools.h"

#include <QHash>
#include <QRandomGenerator>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

MapkeyTemplate templateWithId(const QString& id) {
    for (const MapkeyTemplate& tmpl : defaultMapkeyTemplates()) {
        if (tmpl.id == id)
            return tmpl;
    }
    ADD_FAILURE() << "no template " << id.toStdString();
    return {};
}

// Joins the lines of each mapkey back into one text, as the CAD system reads them.
QStringList unwrap(const QStringList& lines) {
    QStringList mapkeys;
    for (const QString& line : lines) {
        if (line.startsWith(u"mapkey(continued) "_s)) {
            EXPECT_FALSE(mapkeys.isEmpty());
            EXPECT_TRUE(mapkeys.last().endsWith(u'\\')) << mapkeys.last().toStdString();
            mapkeys.last().chop(1);
            mapkeys.last() += line.mid(18);
        } else if (line.startsWith(u"mapkey "_s)) {
            mapkeys << line;
        } else {
            EXPECT_TRUE(line.startsWith(u'!')) << line.toStdString();
        }
    }
    return mapkeys;
}

// What the editor's mapkey tools must say about any generated file.
void expectValidConfig(const BatchResult& result) {
    for (const QString& line : result.lines)
        EXPECT_LE(line.size(), kMaxMapkeyLineLength) << line.toStdString();
    QStringList firstLines;
    for (const QString& line : result.lines) {
        if (isMapkeyFirstLine(line))
            firstLines << line;
    }
    EXPECT_EQ(mapkeyNames(result.lines).size(), firstLines.size());
    EXPECT_TRUE(duplicateMapkeyLines(result.lines).isEmpty());
    const QStringList names = mapkeyNames(result.lines);
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size()) << "two mapkeys on one key";
    for (const QString& key : result.keys)
        EXPECT_TRUE(names.contains(key)) << key.toStdString();
    for (const QString& mapkey : unwrap(result.lines)) {
        EXPECT_TRUE(mapkey.endsWith(u';')) << mapkey.toStdString();
        EXPECT_EQ(mapkey.count(u'`') % 2, 0) << mapkey.toStdString();
    }
}

TEST(BatchMapkeys, EveryTemplatePassesTheMapkeyToolsForAwkwardNames) {
    const QStringList names = {u"bracket.prt"_s,
                               u"Teil mit Leerzeichen.prt"_s,
                               u"Größenmaß übergröße.asm"_s,
                               u"a.drw"_s,
                               u"%name 100%.prt"_s,
                               u"x\\y.prt"_s,
                               u"ein_sehr_langer_name_mit_31_zei.prt"_s};
    for (const MapkeyTemplate& tmpl : defaultMapkeyTemplates()) {
        SCOPED_TRACE(tmpl.id.toStdString());
        BatchParameters parameters = defaultBatchParameters();
        parameters.collectorKey = u"$F12"_s;
        const BatchResult result = generateBatchMapkeys(u"C:\\Work Dir\\Ä"_s, names, tmpl, parameters);
        EXPECT_TRUE(result.problems.isEmpty()) << result.problems.join(u'\n').toStdString();
        EXPECT_EQ(result.files, names);
        expectValidConfig(result);
        const QStringList mapkeys = unwrap(result.lines);
        ASSERT_EQ(mapkeys.size(), names.size() + 1);
        for (qsizetype i = 0; i < names.size(); ++i)
            EXPECT_TRUE(mapkeys.at(i).contains(u"`Inputname` `"_s + names.at(i) + u"`;"_s))
                << mapkeys.at(i).toStdString();
        EXPECT_TRUE(mapkeys.last().startsWith(u"mapkey $F12 @MAPKEY_LABEL"_s));
        EXPECT_TRUE(mapkeys.last().endsWith(u"%qm6;%qm7;"_s)) << mapkeys.last().toStdString();
    }
}

TEST(BatchMapkeys, ManyFilesGetKeysOfOneWidthAndAWrappedCollector) {
    QStringList names;
    for (int i = 0; i < 1200; ++i)
        names << u"teil_%1.prt"_s.arg(i);
    BatchParameters parameters = defaultBatchParameters();
    parameters.keyPrefix = u"b"_s;
    parameters.firstNumber = 5;
    parameters.collectorKey = u"alle"_s;
    const BatchResult result = generateBatchMapkeys(u"/w"_s, names, templateWithId(u"speichern"_s), parameters);
    ASSERT_EQ(result.keys.size(), 1200);
    EXPECT_EQ(result.keys.first(), u"b0005"_s);
    EXPECT_EQ(result.keys.last(), u"b1204"_s);
    // No key may be the beginning of another: the shorter one would fire first.
    for (const QString& key : result.keys)
        EXPECT_EQ(key.size(), 5);
    expectValidConfig(result);
}

TEST(BatchMapkeys, NamesThatCannotStandInAMapkeyAreLeftOutWithAReason) {
    const QStringList names = {u"gut.prt"_s,
                               u"semi;kolon.prt"_s,
                               u"back`tick.prt"_s,
                               u"zeilen\numbruch.prt"_s,
                               QString(60, u'x') + u".prt"_s,
                               u"auch_gut.prt"_s};
    const BatchResult result =
        generateBatchMapkeys(u"/w"_s, names, templateWithId(u"oeffnen"_s), defaultBatchParameters());
    EXPECT_EQ(result.files, (QStringList{u"gut.prt"_s, u"auch_gut.prt"_s}));
    EXPECT_EQ(result.keys, (QStringList{u"qm1"_s, u"qm2"_s})); // numbers close up
    ASSERT_EQ(result.problems.size(), 4);
    EXPECT_TRUE(result.problems.at(0).contains(u"semi;kolon.prt"_s));
    EXPECT_TRUE(result.problems.at(0).contains(u"ausgelassen"_s));
    EXPECT_TRUE(result.problems.at(2).contains(u"Steuerzeichen"_s));
    EXPECT_TRUE(result.problems.at(3).contains(u"zu lang"_s));
    EXPECT_FALSE(result.parametersRefused);
    expectValidConfig(result);
}

TEST(BatchMapkeys, PlaceholdersTakeTheFileItsPathAndItsFolder) {
    MapkeyTemplate tmpl{u"eigen"_s,
                        u"Eigen"_s,
                        {u"~ Update `file_open` `Inputname` `%PFAD%`;"_s, u"~ Trail `a` `%ORDNER%` `%DATEI%`;"_s}};
    const BatchResult result = generateBatchMapkeys(u"/daten/cad"_s, {u"b.prt"_s}, tmpl, defaultBatchParameters());
    const QStringList mapkeys = unwrap(result.lines);
    ASSERT_EQ(mapkeys.size(), 1);
    EXPECT_TRUE(mapkeys.first().contains(u"`Inputname` `/daten/cad/b.prt`;"_s)) << mapkeys.first().toStdString();
    EXPECT_TRUE(mapkeys.first().contains(u"`a` `/daten/cad` `b.prt`;"_s));

    const BatchResult refused = generateBatchMapkeys(u"/da;ten"_s, {u"b.prt"_s}, tmpl, defaultBatchParameters());
    EXPECT_TRUE(refused.parametersRefused);
    EXPECT_TRUE(refused.lines.isEmpty());
}

TEST(BatchMapkeys, PlaceholdersAreReplacedInOnePassSoNamesHoldingThemStayAsTheyAre) {
    const MapkeyTemplate tmpl{
        u"eigen"_s,
        u"Eigen"_s,
        {u"~ Update `a` `%PFAD%`;"_s, u"~ Update `b` `%ORDNER%`;"_s, u"~ Update `c` `%DATEI%`;"_s}};
    const QStringList names = {u"x%ORDNER%.prt"_s, u"%PFAD%%DATEI%.asm"_s};
    const BatchResult result = generateBatchMapkeys(u"/w/%DATEI%"_s, names, tmpl, defaultBatchParameters());
    ASSERT_EQ(result.files, names);
    const QStringList mapkeys = unwrap(result.lines);
    ASSERT_EQ(mapkeys.size(), 2);
    EXPECT_EQ(mapkeys.at(0), u"mapkey qm1 @MAPKEY_LABELEigen x%ORDNER%.prt;~ Update `a` `/w/%DATEI%/x%ORDNER%.prt`;"
                             u"~ Update `b` `/w/%DATEI%`;~ Update `c` `x%ORDNER%.prt`;"_s);
    EXPECT_EQ(mapkeys.at(1), u"mapkey qm2 @MAPKEY_LABELEigen %PFAD%%DATEI%.asm;"
                             u"~ Update `a` `/w/%DATEI%/%PFAD%%DATEI%.asm`;~ Update `b` `/w/%DATEI%`;"
                             u"~ Update `c` `%PFAD%%DATEI%.asm`;"_s);

    const PlaceholderValues values{u"f"_s, u"p"_s, u"o"_s};
    EXPECT_EQ(substitutePlaceholders(u"%%DATEI%%PFAD%%ORDNER%%"_s, values), u"%fpo%"_s);
    EXPECT_EQ(substitutePlaceholders(u"%DATEI %pfad% %ORDNER"_s, values), u"%DATEI %pfad% %ORDNER"_s);
}

TEST(BatchMapkeys, EveryShippedTemplateDoesWhatItsNameSays) {
    const QString open = u"~ Command `ProCmdModelOpen` ;~ Trail `UI Desktop` `UI Desktop` `DLG_PREVIEW_POST` "
                         u"`file_open`;~ Update `file_open` `Inputname` `bracket.prt`;"
                         u"~ Command `ProFileSelPushOpen@context_dlg_open_cmd`;"_s;
    // A template that changes the model saves it and closes its window, or a batch of N files
    // leaves N windows open.
    const QString saveAndClose =
        u"~ Command `ProCmdModelSave` ;~ Activate `file_saveas` `OK`;~ Command `ProCmdWinCloseGroup` ;"_s;
    const QHash<QString, QString> expected = {
        {u"oeffnen"_s, u"mapkey qm1 @MAPKEY_LABELÖffnen bracket.prt;"_s + open},
        {u"regenerieren"_s, u"mapkey qm1 @MAPKEY_LABELÖffnen und regenerieren bracket.prt;"_s + open +
                                u"~ Command `ProCmdRegenPart` ;"_s + saveAndClose},
        {u"speichern"_s, u"mapkey qm1 @MAPKEY_LABELÖffnen und speichern bracket.prt;"_s + open + saveAndClose},
    };
    const QList<MapkeyTemplate> shipped = defaultMapkeyTemplates();
    ASSERT_EQ(shipped.size(), expected.size());
    for (const MapkeyTemplate& tmpl : shipped) {
        SCOPED_TRACE(tmpl.id.toStdString());
        ASSERT_TRUE(expected.contains(tmpl.id));
        BatchParameters parameters = defaultBatchParameters();
        parameters.collectorKey = u"alle"_s;
        const BatchResult result = generateBatchMapkeys(u"/w"_s, {u"bracket.prt"_s}, tmpl, parameters);
        ASSERT_TRUE(result.problems.isEmpty()) << result.problems.join(u'\n').toStdString();
        EXPECT_EQ(result.lines.first(), u"! quenfor Mapkey-Generator, Vorlage \"%1\": 1 Mapkeys"_s.arg(tmpl.name));
        EXPECT_EQ(unwrap(result.lines),
                  (QStringList{expected.value(tmpl.id),
                               u"mapkey alle @MAPKEY_LABELalle 1 Mapkeys: %1;%qm1;"_s.arg(tmpl.name)}));
        expectValidConfig(result);
    }
}

TEST(BatchMapkeys, ALongLabelIsCutButTheFirstLineStaysAMapkey) {
    // The template does not name the file in an action, so only the label has to make room.
    const MapkeyTemplate tmpl{u"regen"_s, u"Regenerieren"_s, {u"~ Command `ProCmdRegenPart` ;"_s}};
    const QString name = QString(90, u'n') + u".prt"_s;
    const BatchResult result = generateBatchMapkeys(u"/w"_s, {name}, tmpl, defaultBatchParameters());
    ASSERT_EQ(result.files, QStringList{name});
    EXPECT_TRUE(result.lines.at(1).startsWith(u"mapkey qm1 @MAPKEY_LABELRegenerieren nnn"_s));
    EXPECT_TRUE(result.lines.at(1).endsWith(u"...;\\"_s)) << result.lines.at(1).toStdString();
    expectValidConfig(result);
}

TEST(BatchMapkeys, BadParametersGiveAMessageAndNoLines) {
    const struct {
        QString prefix;
        int first;
        QString collector;
        QString expected;
    } cases[] = {
        {QString(), 1, QString(), u"Tasten-Präfix an"_s},
        {u"q m"_s, 1, QString(), u"Leerzeichen"_s},
        {u"qä"_s, 1, QString(), u"\u201Eä\u201C"_s},
        {u"q;"_s, 1, QString(), u"\u201E;\u201C"_s},
        {QString(21, u'q'), 1, QString(), u"zu lang"_s},
        {u"q"_s, -1, QString(), u"zwischen 0 und 99999"_s},
        {u"q"_s, 100000, QString(), u"zwischen 0 und 99999"_s},
        {u"q"_s, 1, u"a%"_s, u"Sammel-Mapkeys"_s},
        {u"q"_s, 1, u"q"_s, u"überschneidet"_s},    // a prefix of the keys
        {u"q"_s, 1, u"q1"_s, u"überschneidet"_s},   // begins q10
        {u"q"_s, 1, u"q123"_s, u"überschneidet"_s}, // q12 begins it
        {u"q"_s, 1, u"q03"_s, u"überschneidet"_s},  // equal to a key
    };
    QStringList names;
    for (int i = 0; i < 12; ++i)
        names << u"t%1.prt"_s.arg(i);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.prefix.toStdString() + " / " + c.collector.toStdString());
        BatchParameters parameters = defaultBatchParameters();
        parameters.keyPrefix = c.prefix;
        parameters.firstNumber = c.first;
        parameters.collectorKey = c.collector;
        const BatchResult result = generateBatchMapkeys(u"/w"_s, names, templateWithId(u"oeffnen"_s), parameters);
        EXPECT_TRUE(result.parametersRefused);
        EXPECT_TRUE(result.lines.isEmpty());
        ASSERT_EQ(result.problems.size(), 1);
        EXPECT_TRUE(result.problems.first().contains(c.expected)) << result.problems.first().toStdString();
    }
}

TEST(BatchMapkeys, ActionsAreChecked) {
    const struct {
        QStringList actions;
        QString expected; // empty: accepted
    } cases[] = {
        {{u"~ Command `ProCmdModelOpen` ;"_s}, QString()},
        {{u"  ~ Command `A` ;  "_s}, QString()},
        {{u"%qm1;%qm2;"_s}, QString()},
        {{}, u"keinen Befehl"_s},
        {{u"~ Command `A` ;"_s, u"   "_s}, u"leeren Befehl"_s},
        {{u"~ Command `A`"_s}, u"mit \";\" enden"_s},
        {{u"~ Command `A ;"_s}, u"schließendes"_s},
        {{u"~ Update `x` `"_s + QString(80, u'y') + u"`;"_s}, u"passt nicht"_s},
        {{u"~ Command `A\tB` ;"_s}, u"Steuerzeichen"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.actions.join(u'|').toStdString());
        const QString problem = checkActions(u"Test"_s, c.actions);
        if (c.expected.isEmpty())
            EXPECT_TRUE(problem.isEmpty()) << problem.toStdString();
        else
            EXPECT_TRUE(problem.contains(c.expected)) << problem.toStdString();
    }
    EXPECT_TRUE(checkBatchParameters(defaultBatchParameters()).isEmpty());
}

TEST(BatchMapkeys, NoSelectedFileIsToldNotWritten) {
    const BatchResult result =
        generateBatchMapkeys(u"/w"_s, {}, templateWithId(u"oeffnen"_s), defaultBatchParameters());
    EXPECT_TRUE(result.lines.isEmpty());
    EXPECT_EQ(result.problems, QStringList{u"Es ist keine Datei ausgewählt."_s});
}

TEST(WrapMapkey, BreaksOnlyAfterSemicolonsOutsideQuotesAndKeepsTheText) {
    QRandomGenerator random(4711);
    for (int round = 0; round < 300; ++round) {
        QString mapkey = u"mapkey k%1 "_s.arg(round);
        const int actions = random.bounded(1, 15);
        for (int a = 0; a < actions; ++a) {
            // Quoted texts may hold a ";" that must never become a line end.
            const QString quoted = QString(random.bounded(0, 40), u'w') + (random.bounded(3) == 0 ? u";"_s : QString());
            mapkey += u"~ Update `dlg` `%1`;"_s.arg(quoted);
        }
        const QStringList lines = wrapMapkey(mapkey);
        ASSERT_FALSE(lines.isEmpty());
        QString joined;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString& line = lines.at(i);
            EXPECT_LE(line.size(), kMaxMapkeyLineLength);
            QString text = line;
            if (i > 0) {
                ASSERT_TRUE(text.startsWith(u"mapkey(continued) "_s));
                text = text.mid(18);
            }
            if (i + 1 < lines.size()) {
                ASSERT_TRUE(text.endsWith(u";\\"_s)) << text.toStdString();
                EXPECT_EQ(text.count(u'`') % 2, 0) << "broken inside a quote: " << text.toStdString();
                text.chop(1);
            }
            joined += text;
        }
        EXPECT_EQ(joined, mapkey);
    }
    EXPECT_TRUE(wrapMapkey(u"mapkey a ~ Update `x` `"_s + QString(100, u'y') + u"`;"_s).isEmpty());
    EXPECT_EQ(wrapMapkey(u"mapkey a ~ Command `A` ;"_s), QStringList{u"mapkey a ~ Command `A` ;"_s});
}

TEST(BatchKeys, AreNumberedFromTheFirstNumberInOneWidth) {
    EXPECT_EQ(batchKeys(u"q"_s, 1, 3), (QStringList{u"q1"_s, u"q2"_s, u"q3"_s}));
    EXPECT_EQ(batchKeys(u"q"_s, 8, 3), (QStringList{u"q08"_s, u"q09"_s, u"q10"_s}));
    EXPECT_EQ(batchKeys(u"$F"_s, 0, 1), QStringList{u"$F0"_s});
    EXPECT_EQ(batchKeys(u"q"_s, 99999, 2), (QStringList{u"q099999"_s, u"q100000"_s}));
    EXPECT_TRUE(batchKeys(u"q"_s, 1, 0).isEmpty());
}

} // namespace
