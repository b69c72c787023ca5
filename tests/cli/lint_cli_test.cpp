// quenfor-cli lint, as a company's script checks its shared configuration before handing it out.
#include "../common/qstringprinting.h"
#include "clitest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

class LintCliTest : public CliTestBase {
protected:
    QString config() {
        return write(u"config.pro"_s, "! Firmenkonfiguration\r\n"
                                      "pro_unit_length unit_mm\r\n"
                                      "dispaly shade\r\n"
                                      "search_path C:\\ptc\\teile\r\n"
                                      "search_path C:\\ptc\\normteile\r\n"
                                      "PRO_UNIT_LENGTH unit_inch\r\n"
                                      "mapkey rf @MAPKEY_LABELEinpassen;\\\r\n"
                                      "bell no\r\n");
    }
    QString clean() { return write(u"sauber.pro"_s, "bell no\r\nmapkey a #x;\\\r\nmapkey(continued) #y;\r\n"); }
};

TEST_F(LintCliTest, FindingsAreListedAndFailTheScript) {
    const QString file = config();
    const CliRun r = run({u"lint"_s, file});
    EXPECT_EQ(r.status, 1) << r.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(r.out),
              file + u":3: Unbekannte Option \"dispaly\" – meinten Sie \"display\"?\n"_s + file +
                  u":6: \"PRO_UNIT_LENGTH\" steht schon in Zeile 2 mit dem Wert \"unit_mm\", hier mit \"unit_inch\"; "
                  u"es gilt der letzte.\n"_s +
                  file +
                  u":7: Die Zeile endet mit \"\\\", aber die nächste Zeile setzt das Mapkey nicht fort (sie beginnt "
                  u"nicht mit \"mapkey(continued) \").\n"_s);
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
}

TEST_F(LintCliTest, CleanFilesPass) {
    const CliRun r = run({u"lint"_s, clean(), path(u"sauber.pro"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
}

TEST_F(LintCliTest, SeveralFilesEachByItsFamily) {
    const QString dtl = write(u"din.dtl"_s, "text_height 3.5\r\ndisplay shade\r\n");
    const QString pro = write(u"config.pro"_s, "text_height 3.5\r\ndisplay shade\r\n");
    const CliRun r = run({u"lint"_s, dtl, pro});
    EXPECT_EQ(r.status, 1);
    // Each name belongs to one family only.
    EXPECT_EQ(QString::fromUtf8(r.out), dtl + u":2: Unbekannte Zeichnungsoption \"display\"\n"_s + pro +
                                            u":1: Unbekannte Option \"text_height\"\n"_s);
}

TEST_F(LintCliTest, SearchProAndItsFolders) {
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"teile"_s));
    const QString file = write(u"search.pro"_s, "teile\r\nfehlt\r\nTEILE\\\r\n");
    const CliRun plain = run({u"lint"_s, file});
    EXPECT_EQ(plain.status, 1);
    EXPECT_EQ(QString::fromUtf8(plain.out), file + u":3: Das Verzeichnis steht schon in Zeile 1.\n"_s);

    const CliRun checked = run({u"lint"_s, u"--check-paths"_s, file});
    EXPECT_EQ(checked.status, 1);
    EXPECT_TRUE(QString::fromUtf8(checked.out).contains(file + u":2: Das Verzeichnis \"fehlt\" gibt es nicht.\n"_s))
        << checked.out.toStdString();
}

TEST_F(LintCliTest, UnreadableFileIsReportedAndTheOthersChecked) {
    const QString good = clean();
    const CliRun r = run({u"lint"_s, path(u"fehlt.pro"_s), good});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.contains(u"existiert nicht"_s)) << r.err.toStdString();
}

TEST_F(LintCliTest, StandardInputHasNoFamily) {
    const CliRun r = run({u"lint"_s, u"-"_s}, "bell yes\r\nbell no\r\n");
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, QByteArray("-:2: \"bell\" steht schon in Zeile 1 mit dem Wert \"yes\", hier mit \"no\"; es gilt "
                                "der letzte.\n"));
    EXPECT_TRUE(r.err.contains(u"Hinweis"_s)) << r.err.toStdString();
}

TEST_F(LintCliTest, MissingListsFailWithANote) {
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"leer"_s));
    const CliRun r = run({u"lint"_s, u"--data"_s, path(u"leer"_s), clean()});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.contains(u"known_options.txt"_s)) << r.err.toStdString();
}

TEST_F(LintCliTest, WrongCallsShowTheUsage) {
    const QString file = clean();
    for (const QStringList& args : {QStringList{u"lint"_s}, QStringList{u"lint"_s, u"-i"_s, file}}) {
        const CliRun r = run(args);
        EXPECT_EQ(r.status, 2) << args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(u"lint [--check-paths] [--release NAME] DATEI..."_s)) << r.err.toStdString();
    }
}

// The administrator checks the company config against the release the seats run before rolling it
// out: values outside an option's choices always, options the release lacks or hides on request.
TEST_F(LintCliTest, ValuesAndTargetRelease) {
    const QString file = write(u"config.pro"_s, "! Firmenkonfiguration\r\n"
                                                "display shaded\r\n"
                                                "3d_datum_display_fill YES\r\n"
                                                "def_layer LAYER_DATUM datum\r\n"
                                                "bell no\r\n");
    const QString wrongValue =
        file + u":2: Wert \"shaded\" ist für display nicht erlaubt – erlaubt: wireframe, hiddenvis, hiddeninvis, "
               u"shade, shadewithreflect, shadewithedges; meinten Sie \"shade\"?\n"_s;
    const CliRun plain = run({u"lint"_s, file});
    EXPECT_EQ(plain.status, 1);
    EXPECT_EQ(QString::fromUtf8(plain.out), wrongValue);

    // The option may stand after the files; the name is taken in any case.
    const CliRun cp6 = run({u"lint"_s, file, u"--release"_s, u"cp6"_s});
    EXPECT_EQ(cp6.status, 1) << cp6.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(cp6.out),
              wrongValue + file + u":3: \"3d_datum_display_fill\" gibt es in Creo Parametric 6.0 nicht\n"_s);
    EXPECT_TRUE(cp6.err.isEmpty()) << cp6.err.toStdString();

    const CliRun cp11 = run({u"lint"_s, u"--release"_s, u"CP11"_s, file});
    EXPECT_EQ(QString::fromUtf8(cp11.out), wrongValue);
}

TEST_F(LintCliTest, UnknownReleaseIsAUsageErrorNamingTheKnownOnes) {
    const QString file = clean();
    const CliRun r = run({u"lint"_s, u"--release"_s, u"Creo6"_s, file});
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.startsWith(u"Unbekannte Version \"Creo6\" – bekannt sind: WF4, "_s)) << r.err.toStdString();
    for (const QStringList& args : {QStringList{u"lint"_s, file, u"--release"_s},
                                    QStringList{u"lint"_s, u"--release"_s, u"CP6"_s, u"--release"_s, u"CP7"_s, file}}) {
        const CliRun bad = run(args);
        EXPECT_EQ(bad.status, 2) << args.join(u' ').toStdString();
        EXPECT_TRUE(bad.out.isEmpty());
    }
}

} // namespace
