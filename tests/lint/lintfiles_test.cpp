// Real-looking files with planted faults, read from disk as the editor opens them: every planted
// fault is found on its line, and nothing else is reported.
#include "knowledge/proposal.h"
#include "lintfixture.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace quenfor;
using linttest::lineOf;
using linttest::Spot;

namespace {

// An option line of exactly `length` characters: a long path to a share.
QString pathLine(const QString& option, int length) {
    QString line = option + u" \\\\fileserver01\\cad_bibliothek\\"_s;
    while (line.size() < length)
        line += u"normteile_"_s.left(length - int(line.size()));
    return line;
}

const QString kLongPath = pathLine(u"pro_library_dir"_s, 99);
const QString kExact98 = pathLine(u"pro_format_dir"_s, 98);
const QString kBlanksAfter98 = pathLine(u"pro_symbol_dir"_s, 98) + u"   "_s;

// A company config.pro as it grows over the years: sections, umlauts in comments, paths,
// favourites and mapkeys, with the faults that creep in.
const QStringList kConfigPro = {
    u"! config.pro der Konstruktion – Stand März 2026"_s,
    u"! Änderungen nur über die CAD-Administration (Tel. 4711)"_s,
    u""_s,
    u"! Einheiten und Vorlagen"_s,
    u"Pro_Unit_Length unit_mm"_s,
    u"pro_unit_mass unit_kilogram"_s,
    u"template_solidpart C:\\ptc\\vorlagen\\mmns_part_solid.prt"_s,
    u"template_drawing C:\\ptc\\vorlagen\\a3_zeichnung.drw"_s,
    u""_s,
    u"! Pfade"_s,
    u"search_path C:\\ptc\\normteile"_s,
    u"search_path \\\\server\\cad\\projekte"_s,
    u"   trail_dir C:\\temp\\trail\\"_s,
    kExact98,
    kBlanksAfter98,
    kLongPath,
    u"! dispaly ist hier nur ein Kommentar"_s,
    u""_s,
    u"! Darstellung"_s,
    u"dispaly shade"_s,
    u"DATUM_DISPLAY NO"_s,
    u"datum_display   no   "_s,
    u"tangent_edge_display dimmed"_s,
    u"pro_unit_length unit_inch"_s,
    u"save_objets changed_and_specified"_s,
    u""_s,
    u"! Favoriten"_s,
    u"browser_favorite Normteile C:\\ptc\\normteile"_s,
    u"browser_favorite Projekte \\\\server\\projekte"_s,
    u""_s,
    u"! Tastaturmakros"_s,
    u"mapkey $F2 @MAPKEY_NAMEAnsicht speichern;@MAPKEY_LABELAnsicht;\\"_s,
    u"mapkey(continued) ~ Command `ProCmdViewSaved`;"_s,
    u"mapkey sv @MAPKEY_LABELSpeichern unter;~ Command `ProCmdModelSaveAs`;\\  "_s,
    u"mapkey(continued) ~ Activate `file_saveas` `OK`;"_s,
    u"mapkey ppr @MAPKEY_LABELParameter;~ Command `ProCmdMmParams`;\\"_s,
    u"! hier fehlt die Fortsetzung"_s,
    u"mapkey rf @MAPKEY_LABELEinpassen;~ Command `ProCmdViewRefit`;"_s,
    u"mapkey(continued) ~ Activate `main_dlg_cur` `ProCmdViewRefit.view`;"_s,
    u"mapkey zz @MAPKEY_LABELZoom;~ Command `ProCmdViewZoomIn`;\\"_s,
};

class LintFilesTest : public ::testing::Test {
protected:
    QTemporaryDir dir;

    LintFileResult lint(const QString& name, const QByteArray& bytes, bool checkPaths = false) {
        const QString path = linttest::writeFile(dir.filePath(name), bytes);
        LintOptions options = linttest::shippedOptions();
        options.checkPaths = checkPaths;
        return lintFile(path, options);
    }
};

TEST_F(LintFilesTest, ConfigProFaultsAreFoundOnTheirLines) {
    const LintFileResult r = lint(u"config.pro"_s, linttest::windowsBytes(kConfigPro));
    ASSERT_TRUE(r.ok) << r.error.toStdString();
    const auto at = [](const QString& text) { return lineOf(kConfigPro, text); };
    const QList<Spot> expected = {
        {at(kLongPath), FindingKind::LongLine},
        {at(u"dispaly shade"_s), FindingKind::UnknownOption},
        {at(u"pro_unit_length unit_inch"_s), FindingKind::ConflictingValue},
        {at(u"save_objets changed_and_specified"_s), FindingKind::UnknownOption},
        {at(u"mapkey ppr @MAPKEY_LABELParameter;~ Command `ProCmdMmParams`;\\"_s), FindingKind::MapkeyChain},
        {at(u"mapkey(continued) ~ Activate `main_dlg_cur` `ProCmdViewRefit.view`;"_s), FindingKind::MapkeyChain},
        {at(u"mapkey zz @MAPKEY_LABELZoom;~ Command `ProCmdViewZoomIn`;\\"_s), FindingKind::MapkeyChain},
    };
    EXPECT_EQ(linttest::spotsOf(r.result.findings), expected);
    EXPECT_TRUE(r.result.notes.isEmpty()) << r.result.notes.join(u'\n').toStdString();
    EXPECT_TRUE(r.result.complete);

    const auto messageAt = [&](const QString& text) {
        for (const LintFinding& f : r.result.findings) {
            if (f.line == at(text))
                return f.message;
        }
        return QString();
    };
    EXPECT_EQ(messageAt(u"dispaly shade"_s), u"Unbekannte Option \"dispaly\" – meinten Sie \"display\"?"_s);
    EXPECT_EQ(messageAt(u"pro_unit_length unit_inch"_s),
              u"\"pro_unit_length\" steht schon in Zeile %1 mit dem Wert \"unit_mm\", hier mit \"unit_inch\"; es gilt "
              u"der letzte."_s.arg(at(u"Pro_Unit_Length unit_mm"_s)));
}

TEST_F(LintFilesTest, DrawingSetupIsCheckedAgainstDrawingOptions) {
    const QStringList dtl = {
        u"! Zeichnungseinstellungen nach DIN"_s,
        u"drawing_text_height                  3.500000"_s,
        u"text_width_factor                    0.700000"_s,
        u"projection_type                      FIRST_ANGLE"_s,
        u"aux_font  1 filled.ndx"_s,
        u"aux_font  2 leroy.ndx"_s,
        u"txt_height 5"_s,
        u"display shade"_s,
        u"PROJECTION_TYPE                      third_angle"_s,
    };
    const LintFileResult r = lint(u"din.dtl"_s, linttest::windowsBytes(dtl));
    ASSERT_TRUE(r.ok);
    const QList<Spot> expected = {
        {7, FindingKind::UnknownOption}, // a typo
        {8, FindingKind::UnknownOption}, // a config.pro option has no place in a drawing setup
        {9, FindingKind::ConflictingValue},
    };
    EXPECT_EQ(linttest::spotsOf(r.result.findings), expected);
    EXPECT_TRUE(r.result.findings[1].message.startsWith(u"Unbekannte Zeichnungsoption \"display\""_s))
        << r.result.findings[1].message.toStdString();
}

TEST_F(LintFilesTest, PlotterFileIsCheckedAgainstPlotterOptions) {
    const QStringList pcf = {
        u"plotter MS_PRINT_MGR"_s,
        u"button_name Windows-Drucker A4/A3"_s,
        u"paper_size A4"_s,
        u"paper_size A3"_s,
        u"plot_clip NO default"_s,
        u"plot_rotation YES"_s,
        u"template_solidpart start.prt"_s,
        u"plot_clip NO   DEFAULT"_s,
    };
    const LintFileResult r = lint(u"a4.pcf"_s, linttest::windowsBytes(pcf));
    ASSERT_TRUE(r.ok);
    const QList<Spot> expected = {{6, FindingKind::UnknownOption}, {7, FindingKind::UnknownOption}};
    EXPECT_EQ(linttest::spotsOf(r.result.findings), expected);
    EXPECT_TRUE(r.result.findings[0].message.startsWith(u"Unbekannte Plotteroption \"plot_rotation\""_s));
}

TEST_F(LintFilesTest, SearchProFaults) {
    ASSERT_TRUE(QDir(dir.path()).mkpath(u"cad/normteile"_s));
    ASSERT_TRUE(QDir(dir.path()).mkpath(u"cad/projekt alt"_s));
    ASSERT_TRUE(QDir(dir.path()).mkpath(u"cad/lager"_s));
    const QString base = QDir::toNativeSeparators(dir.path());
    const QStringList searchPro = {
        u"! Suchpfade der Abteilung"_s,
        base + u"/cad/normteile"_s,
        u""_s,
        u"\""_s + base + u"/cad/projekt alt\""_s,
        base + u"/cad/projekt alt"_s,
        base + u"/cad/normteile/"_s,
        u"\\\\server\\cad\\lager"_s,
        u"M:\\\\projekte\\wip"_s,
        u"cad/lager"_s,
        u"cad/fehlt"_s,
        u"\"M:\\projekte\\freigabe\"`"_s,
        u"\"M:\\projekte\\offen"_s,
        u"$PRO_DIRECTORY\\text"_s,
    };
    const QByteArray bytes = linttest::windowsBytes(searchPro);

    const LintFileResult plain = lint(u"search.pro"_s, bytes);
    ASSERT_TRUE(plain.ok);
    QList<Spot> expected = {
        {5, FindingKind::RepeatedFolder},   {5, FindingKind::Quoting},  {6, FindingKind::RepeatedFolder},
        {8, FindingKind::DoubledBackslash}, {11, FindingKind::Quoting}, {12, FindingKind::Quoting},
    };
    EXPECT_EQ(linttest::spotsOf(plain.result.findings), expected);
    EXPECT_EQ(plain.result.findings[0].message, u"Das Verzeichnis steht schon in Zeile 4."_s);
    EXPECT_EQ(plain.result.findings[4].message, u"Nach dem schließenden Anführungszeichen steht noch \"`\"."_s);

    // Only with the folder test: what does not exist here (the drive letters and the share do not).
    const LintFileResult checked = lint(u"search.pro"_s, bytes, true);
    expected = {
        {5, FindingKind::RepeatedFolder}, {5, FindingKind::Quoting},          {6, FindingKind::RepeatedFolder},
        {7, FindingKind::MissingFolder},  {8, FindingKind::DoubledBackslash}, {8, FindingKind::MissingFolder},
        {10, FindingKind::MissingFolder}, {11, FindingKind::Quoting},         {11, FindingKind::MissingFolder},
        {12, FindingKind::Quoting},       {12, FindingKind::MissingFolder},
    };
    EXPECT_EQ(linttest::spotsOf(checked.result.findings), expected);
    EXPECT_EQ(checked.result.findings[6].message, u"Das Verzeichnis \"cad/fehlt\" gibt es nicht."_s);
}

// Version control hands files out with LF alone; the editor reads such a file as one line.
TEST_F(LintFilesTest, UnixFileIsOneLineWithPieces) {
    const QByteArray bytes = "\xEF\xBB\xBF"
                             "display shade\n"
                             "bell no\n"
                             "spin_centre_display no\n"
                             "mapkey vv @MAPKEY_LABELx;\\\n"
                             "! Kommentar\n";
    const LintFileResult r = lint(u"config.sup"_s, bytes);
    ASSERT_TRUE(r.ok);
    const QList<Spot> expected = {
        {1, FindingKind::UnixLineEnds}, {1, FindingKind::MapkeyChain}, {1, FindingKind::UnknownOption}};
    EXPECT_EQ(linttest::spotsOf(r.result.findings), expected);
    EXPECT_EQ(r.result.findings[0].message, u"Die Zeile enthält 5 Zeilenenden nur aus LF (Unix-Text); "
                                            u"\"fragmentierten Unix Text reparieren\" trennt sie in Zeilen."_s);
    EXPECT_EQ(r.result.findings[2].message,
              u"Unbekannte Option \"spin_centre_display\" – meinten Sie \"spin_center_display\"? (Teilzeile 3)"_s);
}

TEST_F(LintFilesTest, BinaryDataAndBlankLinesGiveReadableMessages) {
    QByteArray bytes("bell no\r\n \t \r\n");
    bytes += QByteArray("\x01\x02garbage\x7f \x00\x00value\r\n", 20);
    bytes += QByteArray(300, 'x') + "\r\n";
    const LintFileResult r = lint(u"config.pro"_s, bytes);
    ASSERT_TRUE(r.ok);
    const QList<Spot> expected = {
        {3, FindingKind::UnknownOption}, {4, FindingKind::LongLine}, {4, FindingKind::UnknownOption}};
    EXPECT_EQ(linttest::spotsOf(r.result.findings), expected);
    EXPECT_EQ(r.result.findings[0].message, u"Unbekannte Option \"^A^Bgarbage^?\""_s);
    EXPECT_EQ(r.result.findings[2].message, u"Unbekannte Option \"%1...\""_s.arg(QString(60, u'x')));
}

TEST_F(LintFilesTest, UnreadableFilesSayWhy) {
    LintOptions options = linttest::shippedOptions();
    const LintFileResult missing = lintFile(dir.filePath(u"fehlt.pro"_s), options);
    EXPECT_FALSE(missing.ok);
    EXPECT_TRUE(missing.error.contains(u"existiert nicht"_s)) << missing.error.toStdString();

    ASSERT_TRUE(QDir(dir.path()).mkdir(u"ordner.pro"_s));
    const LintFileResult folder = lintFile(dir.filePath(u"ordner.pro"_s), options);
    EXPECT_FALSE(folder.ok);
    EXPECT_TRUE(folder.error.contains(u"Verzeichnis"_s)) << folder.error.toStdString();
}

// The files the program ships and the configuration proposal are its own examples: the check must
// find nothing in them.
TEST(LintShippedFiles, NothingToReport) {
    const QString data = linttest::shippedData();
    for (const QString& name : {u"samples/config.pro"_s, u"quenfor.pro"_s, u"quenfor.dtl"_s, u"quenfor.pcf"_s}) {
        const LintFileResult r = lintFile(data + u'/' + name, linttest::shippedOptions());
        ASSERT_TRUE(r.ok) << name.toStdString();
        EXPECT_TRUE(r.result.findings.isEmpty())
            << name.toStdString() << ": " << r.result.findings.value(0).message.toStdString();
        EXPECT_TRUE(r.result.complete) << name.toStdString();
    }
    const QStringList proposal = proposalLines() + ghostLines();
    const LintResult r = lintLines(proposal, u"config.pro"_s, linttest::shippedOptions());
    EXPECT_TRUE(r.findings.isEmpty()) << r.findings.value(0).message.toStdString();
}

} // namespace
