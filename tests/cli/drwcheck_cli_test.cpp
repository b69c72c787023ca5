// quenfor-cli drwcheck, run as a nightly script would over single drawings and whole folders.
#include "../cadfiles/drawingfixture.h"
#include "../cadfiles/modellistfixture.h"
#include "clitest.h"

#ifdef Q_OS_UNIX
#include "../common/unblockingfifo.h"
#endif

#include <QDir>

using namespace Qt::StringLiterals;
using drawingfixture::drawingBytes;

namespace {

class DrwCheckCliTest : public CliTestBase {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(dir.path()).mkdir(u"zeichnungen"_s));
        ASSERT_TRUE(QDir(dir.path()).mkdir(u"aktuell"_s));
        write(u"zeichnungen/bracket.drw.2"_s, drawingBytes("BRACKET "));
        write(u"zeichnungen/Bracket2.drw"_s, drawingBytes("BRACKET "));
        write(u"zeichnungen/a.b.drw"_s, drawingBytes("a "));
        write(u"zeichnungen/kurz.drw"_s, "#UGC:2 DRAWING 1977 1560 803 1 1 15 3800 2022024 000002cf \\\n#- VERS 0 0\n");
        write(u"zeichnungen/bracket.prt.1"_s, drawingBytes("BRACKET "));
        write(u"einzeln.drw"_s, drawingBytes("EINZELN2"));
        write(u"binaer.drw"_s, drawingfixture::headerLine("\tBIN\x01", 730));
        using namespace modellistfixture;
        write(u"aktuell/gehaeuse.drw.3"_s,
              currentDrawing({packedSection(), modelsSection({"GEHAEUSE.PRT"}), objectsSection()}));
        write(u"aktuell/welle.drw"_s, currentDrawing({packedSection()}, {modelsSection({"WELLE.PRT", "LAGER.ASM"})}));
        write(u"aktuell/leer.drw"_s, currentDrawing({modelsSection({})}));
        write(u"aktuell/kaputt.drw"_s, currentDrawing({modelsSection({"A\tB.PRT"})}));
    }
};

TEST_F(DrwCheckCliTest, PrintsOneLinePerDrawing) {
    const CliRun r = run({u"drwcheck"_s, path(u"zeichnungen"_s), path(u"einzeln.drw"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, QByteArray("A\tA\tOK\t\n"
                                "BRACKET\tBRACKET\tOK\t\n"
                                "BRACKET2\tBRACKET\tNICHT\t\n"
                                "KURZ\t\tNICHT\t\n"
                                "EINZELN\tEINZELN2\tNICHT\t\n"));
    // Why KURZ reads nothing: its first line is far too short.
    EXPECT_TRUE(r.err.contains(u"Bei 1 von 5 Zeichnungen ist die erste Zeile kürzer als 725 Zeichen"_s))
        << r.err.toStdString();
}

TEST_F(DrwCheckCliTest, ControlCharactersKeepTheColumns) {
    const CliRun r = run({u"drwcheck"_s, path(u"binaer.drw"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, QByteArray("BINAER\t^IBIN^A\tNICHT\t\n"));
}

// Drawings of current releases: the designed rule reads nothing, the fourth column tells what
// the drawing lists itself.
TEST_F(DrwCheckCliTest, FourthColumnListsTheDrawingsOwnModels) {
    const CliRun folder = run({u"drwcheck"_s, path(u"aktuell"_s)});
    EXPECT_EQ(folder.status, 0) << folder.err.toStdString();
    EXPECT_EQ(folder.out, QByteArray("GEHAEUSE\t\tNICHT\tGEHAEUSE.PRT\n"
                                     "KAPUTT\t\tNICHT\t\n"
                                     "LEER\t\tNICHT\t\n"
                                     "WELLE\t\tNICHT\tWELLE.PRT,LAGER.ASM\n"));
    EXPECT_TRUE(folder.err.contains(u"Bei 4 von 4 Zeichnungen"_s)) << folder.err.toStdString();

    const CliRun single = run({u"drwcheck"_s, path(u"aktuell/welle.drw"_s)});
    EXPECT_EQ(single.out, QByteArray("WELLE\t\tNICHT\tWELLE.PRT,LAGER.ASM\n"));
}

TEST_F(DrwCheckCliTest, MissingPathFailsButTheOthersAreChecked) {
    const CliRun r = run({u"drwcheck"_s, path(u"fehlt.drw"_s), path(u"einzeln.drw"_s)});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, QByteArray("EINZELN\tEINZELN2\tNICHT\t\n"));
    EXPECT_TRUE(r.err.contains(u"gibt es nicht"_s)) << r.err.toStdString();
}

#ifdef Q_OS_UNIX
TEST_F(DrwCheckCliTest, APipeIsRefusedAndTheOthersAreChecked) {
    UnblockingFifo fifo(path(u"pipe.drw"_s));
    ASSERT_TRUE(fifo.isValid());
    const CliRun r = run({u"drwcheck"_s, path(u"pipe.drw"_s), path(u"einzeln.drw"_s)});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, QByteArray("EINZELN\tEINZELN2\tNICHT\t\n"));
    EXPECT_TRUE(r.err.contains(u"keine gewöhnliche Datei"_s)) << r.err.toStdString();
}
#endif

TEST_F(DrwCheckCliTest, UsageErrors) {
    for (const QStringList& args :
         {QStringList{u"drwcheck"_s}, QStringList{u"drwcheck"_s, u"-r"_s, path(u"einzeln.drw"_s)}}) {
        const CliRun r = run(args);
        EXPECT_EQ(r.status, 2) << args.join(u' ').toStdString();
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_TRUE(r.err.contains(u"drwcheck"_s)) << r.err.toStdString();
    }
}

} // namespace
