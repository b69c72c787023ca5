// Runs the real quenfor-cli binary on files, as scripts of administrators do.

#include "clitest.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class CliTest : public CliTestBase {};

TEST_F(CliTest, CatGivesEveryByteBack) {
    QByteArray all;
    for (int b = 0; b < 256; ++b) {
        if (b != '\r' && b != '\n')
            all.append(char(b));
    }
    const QByteArray file = "first\r\n" + all + "\r\n" + all + all + "\r\nlast\r\n";
    const QString name = write(u"all.pro"_s, file);
    const CliRun r = run({u"cat"_s, name});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, file);

    // The same through standard input and into a file with -o.
    EXPECT_EQ(run({u"cat"_s, u"-"_s}, file).out, file);
    EXPECT_EQ(run({u"cat"_s, name, u"-o"_s, path(u"copy.pro"_s)}).status, 0);
    EXPECT_EQ(read(path(u"copy.pro"_s)), file);
}

TEST_F(CliTest, CatKeepsByteOrderMarkAndUtf8) {
    const QByteArray file = "\xEF\xBB\xBF! Kommentar \xE4\xB8\xAD\r\nopt za\xC5\xBC\xC3\xB3\xC5\x82\xC4\x87\r\n";
    EXPECT_EQ(run({u"cat"_s, write(u"bom.pro"_s, file)}).out, file);
    // The mark is not part of the first line: it is a comment.
    EXPECT_EQ(run({u"kinds"_s, path(u"bom.pro"_s)}).out, "0\tcomment\n1\toption\n");
}

TEST_F(CliTest, LineEndsFollowTheReaderRule) {
    // A lone CR ends a line, a lone LF does not; every line is written with CR LF.
    const CliRun r = run({u"cat"_s, write(u"mixed.pro"_s, "a\rb\nc\r\nd")});
    EXPECT_EQ(r.out, "a\r\nb\nc\r\nd\r\n");
    EXPECT_EQ(run({u"kinds"_s, path(u"mixed.pro"_s)}).out, "0\toption\n1\toption\n2\toption\n");
}

TEST_F(CliTest, CleanUpCommands) {
    struct Case {
        QString command;
        QByteArray input;
        QByteArray expected;
    };
    const QList<Case> cases = {
        {u"blank"_s, "a  b   c\r\n   \r\n\r\nd\r\n", "a b c\r\nd\r\n"},
        {u"dedupe"_s, "x 1\r\nmapkey a\r\nx 1\r\n! c\r\n\r\nmapkey a\r\n! c\r\n\r\nX 1\r\n",
         "x 1\r\nmapkey a\r\n! c\r\n\r\nmapkey a\r\n\r\nX 1\r\n"},
        {u"lower"_s, "OPT C:\\Pfad\r\n! KOMMENTAR\r\nmapkey(continued) ABC\r\n",
         "opt c:\\pfad\r\n! KOMMENTAR\r\nmapkey(continued) ABC\r\n"},
        {u"repair"_s, "eins\nzwei\ndrei", "eins\r\nzwei\r\ndrei\r\n"},
        {u"repair"_s, "a\r\nb\r\n", "a\r\n\r\nb\r\n\r\n"},
    };
    for (const Case& c : cases) {
        const CliRun r = run({c.command, write(u"in.pro"_s, c.input)});
        EXPECT_EQ(r.status, 0) << c.command.toStdString() << ": " << r.err.toStdString();
        EXPECT_EQ(r.out, c.expected) << c.command.toStdString();
    }
}

// The repair splits while reading: the file's mark and code page stay, standard input works the same.
TEST_F(CliTest, RepairKeepsTheEncodingFromFileAndStandardInput) {
    const QByteArray marked = "\xEF\xBB\xBF\xC3\xA4\nb\r\n\n\xEF\xBB\xBF";
    const QByteArray repaired = "\xEF\xBB\xBF\xC3\xA4\r\nb\r\n\r\n\r\n\xEF\xBB\xBF\r\n";
    EXPECT_EQ(run({u"repair"_s, write(u"bom.pro"_s, marked)}).out, repaired);
    EXPECT_EQ(run({u"repair"_s, u"-"_s}, marked).out, repaired);
    const QByteArray cp1252 = "\xE4\n\xFC";
    EXPECT_EQ(run({u"repair"_s, u"-"_s}, cp1252).out, "\xE4\r\n\xFC\r\n");
    const QString name = write(u"unix.pro"_s, cp1252);
    EXPECT_EQ(run({u"repair"_s, u"-i"_s, name}).status, 0);
    EXPECT_EQ(read(name), "\xE4\r\n\xFC\r\n");
}

// A run on a large file starts itself once more where the machine offers huge pages for the
// heap: the arguments, standard input and the output file must come through that unchanged.
TEST_F(CliTest, LargeFilesComeThroughTheRestartUnchanged) {
    const QByteArray value(200, 'W');
    QByteArray big;
    for (int i = 0; big.size() < (17 << 20); ++i)
        big += "Option_" + QByteArray::number(i) + ' ' + value + "\r\n";
    const QString file = write(u"gross.pro"_s, big);
    const CliRun lowered = run({u"lower"_s, file, u"-o"_s, path(u"klein.pro"_s)});
    EXPECT_EQ(lowered.status, 0) << lowered.err.toStdString();
    EXPECT_EQ(read(path(u"klein.pro"_s)), big.toLower());
    const CliRun same = run({u"diff"_s, file, u"-"_s}, big);
    EXPECT_EQ(same.status, 0) << same.err.toStdString();
}

TEST_F(CliTest, SortNamesTheDroppedLine) {
    const QByteArray input = "zeta 1\r\nmapkey x y\r\nAlpha 1\r\n! c\r\n9 neun\r\n_unter 3\r\nalpha 1\r\n";
    const CliRun r = run({u"sort"_s, write(u"s.pro"_s, input)}, {}, u"de_DE.UTF-8"_s);
    EXPECT_EQ(r.status, 0);
    // "_" before digits before letters; lines equal but for case keep their order; the first leaves.
    EXPECT_EQ(r.out, "9 neun\r\nAlpha 1\r\nalpha 1\r\nzeta 1\r\nmapkey x y\r\n! c\r\n");
    EXPECT_TRUE(r.err.contains(u"_unter 3"_s)) << r.err.toStdString();
}

TEST_F(CliTest, InPlaceReplacesTheFileAndKeepsItOnFailure) {
    const QString name = write(u"c.pro"_s, "b\r\nb\r\na\r\n");
    EXPECT_EQ(run({u"dedupe"_s, u"-i"_s, name}).status, 0);
    EXPECT_EQ(read(name), "b\r\na\r\n");

    // A folder where the output should go: nothing is written, the message says why.
    QDir(dir.path()).mkdir(u"ordner.pro"_s);
    const CliRun r = run({u"cat"_s, name, u"-o"_s, path(u"ordner.pro"_s)});
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(r.err.contains(u"Verzeichnis"_s)) << r.err.toStdString();

    if (geteuid() != 0) { // root writes anywhere; the read-only case then proves nothing
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner);
        const CliRun denied = run({u"blank"_s, u"-i"_s, name});
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_EQ(denied.status, 1);
        EXPECT_TRUE(denied.err.contains(u"Schreibrechte"_s)) << denied.err.toStdString();
        EXPECT_EQ(read(name), "b\r\na\r\n");
    }
}

TEST_F(CliTest, ErrorsAndUsage) {
    struct Case {
        QStringList args;
        int status;
        QString inMessage;
    };
    const QList<Case> cases = {
        {{u"cat"_s, path(u"fehlt.pro"_s)}, 1, u"existiert nicht"_s},
        {{u"cat"_s, dir.path()}, 1, u"Verzeichnis"_s},
        {{u"gibtsnicht"_s}, 2, u"Unbekannter Befehl"_s},
        {{u"cat"_s}, 2, u"Aufruf"_s},
        {{u"cat"_s, u"-i"_s, u"-"_s}, 2, u"Standardeingabe"_s},
        {{u"cat"_s, u"-i"_s, u"-o"_s, u"x"_s, u"y"_s}, 2, u"schließen einander aus"_s},
        {{u"cat"_s, u"--codepage"_s}, 2, u"braucht einen Wert"_s},
        {{u"cat"_s, u"--codepage"_s, u"UTF-16"_s, write(u"u.pro"_s, "a\r\n")}, 1, u"nicht ASCII-kompatibel"_s},
        {{u"cat"_s, u"--codepage"_s, u"klingonisch"_s, path(u"u.pro"_s)}, 1, u"unbekannt"_s},
        {{u"split-mapkey"_s, u"option 1"_s}, 1, u"this function is for mapkeys only !"_s},
    };
    for (const Case& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(c.inMessage)) << c.args.join(u' ').toStdString() << " -> " << r.err.toStdString();
    }
    EXPECT_TRUE(run({u"--version"_s}).out.startsWith("quenfor-cli "));
}

TEST_F(CliTest, ExplainAndCategories) {
    const QString kb = write(u"kb.txt"_s, "trail_dir  Pfad\r\n  Ordner f\xC3\xBCr Trail-Dateien.\r\n");
    const CliRun r = run({u"explain"_s, u"--kb"_s, kb, u"trail_dir  C:\\temp"_s});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(r.out), u"*** Erklärung zur Option: ***\ntrail_dir  Pfad\n  Ordner für Trail-Dateien.\n"
                                        "  Ordner für Trail-Dateien.\n  Ordner für Trail-Dateien.\n"
                                        "  Ordner für Trail-Dateien.\n  Ordner für Trail-Dateien.\n ...\n"_s);
    const CliRun missing = run({u"explain"_s, u"--kb"_s, path(u"fehlt.txt"_s), u"trail_dir x"_s});
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.err.startsWith(u"Die Konfigurations-Datei nicht gefunden !"_s));

    const CliRun sorted = run({u"categories"_s, write(u"c.pro"_s, "mapkey a b\r\ngrid_snap yes\r\n")});
    EXPECT_EQ(sorted.status, 0);
    const QList<QByteArray> lines = sorted.out.split('\n');
    EXPECT_EQ(lines.first(), "! Anwendung -----------------------\r");
    EXPECT_TRUE(sorted.out.contains("! Skizzierer -----------------------\r\ngrid_snap yes\r\n"));
    EXPECT_TRUE(sorted.out.endsWith("! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------\r\nmapkey a b\r\n"));
}

TEST_F(CliTest, CategoriesRefusesSearchPathsDrawingSetupsAndPlotterFiles) {
    const QByteArray lines = "grid_snap yes\r\n";
    for (const QString& name :
         {u"search.pro"_s, u"SEARCH.PRO"_s, u"my_search.pro"_s, u"din.dtl"_s, u"DIN.DTL"_s, u"a4.pcf"_s, u"A4.PCF"_s}) {
        const QString file = write(name, lines);
        const CliRun r = run({u"categories"_s, u"-i"_s, file});
        EXPECT_EQ(r.status, 1) << name.toStdString();
        EXPECT_EQ(r.err, u"Diese Funktion ist nur für config.pro und config.sup Dateien nutzbar !\n"_s)
            << name.toStdString();
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_EQ(read(file), lines) << name.toStdString();
    }
    // Every other name is sorted: config files, colour files, and names of no family at all.
    for (const QString& name : {u"config.sup"_s, u"farben.scl"_s, u"Config.Pro"_s, u"notizen.txt"_s}) {
        const CliRun r = run({u"categories"_s, write(name, lines)});
        EXPECT_EQ(r.status, 0) << name.toStdString() << r.err.toStdString();
        EXPECT_TRUE(r.out.contains("! Skizzierer -----------------------\r\ngrid_snap yes\r\n")) << name.toStdString();
    }
}

TEST_F(CliTest, ForcedCodepageReadsUtf8AsBytes) {
    const QByteArray file = "\xEF\xBB\xBFopt \xC3\xBC\r\n";
    const QString name = write(u"f.pro"_s, file);
    // Forced, the mark becomes characters of the first line and still comes back unchanged.
    const CliRun r = run({u"cat"_s, u"--codepage"_s, u"windows-1252"_s, name});
    EXPECT_EQ(r.out, "\xEF\xBB\xBFopt \xC3\xBC\r\n");
    EXPECT_EQ(run({u"kinds"_s, u"--codepage"_s, u"windows-1252"_s, name}).out, "0\toption\n");
}

TEST_F(CliTest, Queries) {
    EXPECT_EQ(run({u"family"_s, u"C:\\cad\\CONFIG.PRO"_s}).out,
              "config\tList2cfg\tquenfor.pro\tconfig_opts.txt\tconfig.pro\n");
    EXPECT_EQ(run({u"family"_s, u"search.pro"_s}).out,
              "searchpro\tList2cfg\tquenfor.pro\tconfig_opts.txt\tsearch.pro\n");
    EXPECT_EQ(run({u"family"_s, u"a.PCF"_s}).out, "pcf\tList2pcf\tquenfor.pcf\tpcf_opts.txt\tquen.pcf\n");
    EXPECT_EQ(run({u"family"_s, u"Config.Pro"_s}).out, "none\t\t\t\t\n");

    const QString head = u"mapkey xx @MAPKEY_LABELlang;~ Command `ProCmdOne`;~ Command `ProCmdTwo`;"_s;
    const QString rest = u"~ Command `ProCmdThree`;"_s;
    ASSERT_LT(head.size(), 80);
    ASSERT_GE((head + rest).size(), 80);
    const CliRun r = run({u"split-mapkey"_s, head + rest});
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(QString::fromUtf8(r.out), head + u"\\\nmapkey(continued) "_s + rest + u'\n');
    EXPECT_TRUE(r.err.contains(u"check your mapkey !"_s));
}

} // namespace
