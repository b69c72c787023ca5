// quenfor-cli effective and diff, as an administrator checks what a seat ends up with and what a
// new company config.pro changes.
#include "clitest.h"

using namespace Qt::StringLiterals;

namespace {

class CompareCliTest : public CliTestBase {
protected:
    QString sup() {
        return write(u"config.sup"_s, "! Firmenvorgaben\r\n"
                                      "pro_unit_length unit_mm\r\n"
                                      "search_path C:\\ptc\\normteile\r\n");
    }
    QString site() {
        return write(u"site.pro"_s, "PRO_UNIT_LENGTH unit_inch\r\n"
                                    "bell yes\r\n"
                                    "search_path C:\\ptc\\standort\r\n"
                                    "mapkey $F2 @MAPKEY_LABELSpin;\\\r\n"
                                    "mapkey(continued) ~ Command `ProCmdViewSpin`;\r\n");
    }
    // From Unix: one line for the editor, read piece by piece, each piece under line 1.
    QString user() { return write(u"user.pro"_s, "bell no\nmapkey $F2 #eigen;\n"); }
};

TEST_F(CompareCliTest, EffectiveNamesWinnerOverriddenAndLocked) {
    const QString s = sup(), a = site(), u = user();
    const CliRun r = run({u"effective"_s, a, u, s});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(r.out), u"bell no  (%2:1)\n"
                                        "    überschreibt: yes  (%1:2)\n"
                                        "mapkey $F2 #eigen;  (%2:1)\n"
                                        "    überschreibt: @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;  (%1:4)\n"
                                        "pro_unit_length unit_mm  (%3:2) gesperrt\n"
                                        "    gesperrt durch config.sup: unit_inch  (%1:1)\n"
                                        "search_path (sammelt alle Werte)\n"
                                        "    C:\\ptc\\normteile  (%3:3)\n"
                                        "    C:\\ptc\\standort  (%1:3)\n"_s.arg(a, u, s));

    const CliRun tsv = run({u"effective"_s, u"--format"_s, u"tsv"_s, s, a});
    EXPECT_EQ(tsv.status, 0);
    EXPECT_EQ(QString::fromUtf8(tsv.out),
              u"bell\tyes\t%2\t2\teffective\n"
              "mapkey $F2\t@MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;\t%2\t4\teffective\n"
              "pro_unit_length\tunit_mm\t%1\t2\tlocked\n"
              "pro_unit_length\tunit_inch\t%2\t1\trefused\n"
              "search_path\tC:\\ptc\\normteile\t%1\t3\teffective\n"
              "search_path\tC:\\ptc\\standort\t%2\t3\teffective\n"_s.arg(s, a));
}

TEST_F(CompareCliTest, DiffExitsZeroWhenEqualOneWhenDifferent) {
    const QString a = site();
    const QString same =
        write(u"gleich.pro"_s, "! umsortiert\r\nmapkey $F2 @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;\r\n"
                               "\r\nsearch_path C:\\PTC\\standort\r\nBELL yes\r\npro_unit_length unit_inch\r\n");
    const CliRun equal = run({u"diff"_s, a, same});
    EXPECT_EQ(equal.status, 0) << equal.err.toStdString();
    EXPECT_EQ(QString::fromUtf8(equal.out), u"Keine Unterschiede: beide Dateien setzen dasselbe.\n"_s);
    EXPECT_EQ(run({u"diff"_s, u"--format"_s, u"tsv"_s, a, same}).out, QByteArray());

    const QString other =
        write(u"neu.pro"_s, "pro_unit_length unit_mm\r\nsearch_path C:\\ptc\\standort\r\n"
                            "display_grid yes\r\nmapkey $F2 @MAPKEY_LABELSpin;~ Command `ProCmdViewSpin`;\r\n");
    const CliRun diff = run({u"diff"_s, a, other});
    EXPECT_EQ(diff.status, 1);
    EXPECT_EQ(QString::fromUtf8(diff.out), u"- bell: yes  (%1:2)\n"
                                           "+ display_grid: yes  (%2:3)\n"
                                           "~ pro_unit_length: unit_inch → unit_mm  (%1:1 → %2:1)\n"
                                           "1 hinzugefügt, 1 entfernt, 1 geändert\n"_s.arg(a, other));
    const CliRun tsv = run({u"diff"_s, a, u"--format=tsv"_s, other});
    EXPECT_EQ(tsv.status, 1);
    EXPECT_EQ(tsv.out, "removed\toption\tbell\tyes\t\t2\t\n"
                       "added\toption\tdisplay_grid\t\tyes\t\t3\n"
                       "changed\toption\tpro_unit_length\tunit_inch\tunit_mm\t1\t1\n");
    // Standard input as one of the files.
    EXPECT_EQ(run({u"diff"_s, a, u"-"_s}, read(same)).status, 0);
}

TEST_F(CompareCliTest, UnreadableFilesAndBadCallsSayWhyInGerman) {
    const QString a = site();
    const CliRun missing = run({u"diff"_s, a, path(u"fehlt.pro"_s)});
    EXPECT_EQ(missing.status, 1);
    EXPECT_TRUE(missing.out.isEmpty());
    EXPECT_TRUE(missing.err.contains(u"existiert nicht"_s)) << missing.err.toStdString();

    const QString binary = write(u"teil.prt"_s, QByteArray("#UGC\0\0\x01", 7));
    const CliRun refused = run({u"effective"_s, a, binary});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.out.isEmpty());
    EXPECT_TRUE(refused.err.contains(u"Binärdaten"_s)) << refused.err.toStdString();

    EXPECT_EQ(run({u"diff"_s, a}).status, 2);
    EXPECT_EQ(run({u"diff"_s, a, a, a}).status, 2);
    EXPECT_EQ(run({u"diff"_s, u"--format"_s, u"xml"_s, a, a}).status, 2);
    EXPECT_EQ(run({u"effective"_s}).status, 2);
    EXPECT_EQ(run({u"effective"_s, u"-"_s, u"-"_s}).status, 2);
}

} // namespace
