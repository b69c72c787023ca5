// "mapkeys" and "mapkey-dups" through the real quenfor-cli binary, as a script checks a company
// config.pro before it goes out to the seats.

#include "clitest.h"

using namespace Qt::StringLiterals;

namespace {

class MapkeyCli : public CliTestBase {};

// windows-1252 with CR LF, as the CAD system writes it: "\xE4" is "ä".
const QByteArray kConfig = "display shade\r\n"
                           "mapkey \xE4q @MAPKEY_LABEL \xF6\x66\x66nen;~ Command `ProCmdOpen`;\\\r\n"
                           "mapkey(continued) ~ Close `main_dlg_cur`;\r\n"
                           "mapkey  @MAPKEY_LABEL ohne Namen;\r\n"
                           "mapkey zz\r\n"
                           "mapkey \xE4q @MAPKEY_LABEL \xF6\x66\x66nen;~ Command `ProCmdOpen`;\\\r\n"
                           "mapkey(continued) ~ Close `main_dlg_cur`;\r\n"
                           "Mapkey zz @MAPKEY_LABEL gross;\r\n"
                           "mapkey(continued) ~ Close `main_dlg_cur`;\r\n";

} // namespace

TEST_F(MapkeyCli, ListsNamesAndDuplicatesInUtf8) {
    const QString file = write(u"config.pro"_s, kConfig);
    const struct {
        QStringList args;
        QByteArray input;
        QByteArray out;
    } cases[] = {
        {{u"mapkeys"_s, file}, {}, "\xC3\xA4q\n\n\xC3\xA4q\n"},
        {{u"mapkeys"_s, u"-"_s}, kConfig, "\xC3\xA4q\n\n\xC3\xA4q\n"},
        {{u"mapkey-dups"_s, file},
         {},
         "mapkey \xC3\xA4q @MAPKEY_LABEL \xC3\xB6\x66\x66nen;~ Command `ProCmdOpen`;\\\n"},
        {{u"mapkey-dups"_s, u"-"_s},
         "mapkey a b\r\nmapkey b c\r\nmapkey b c\r\nmapkey a b\r\n",
         "mapkey a b\nmapkey b c\n"},
        {{u"mapkey-dups"_s, u"-"_s}, "mapkey a b\r\nmapkey A b\r\n", ""},
        {{u"mapkeys"_s, u"-"_s}, "display shade\r\n", ""},
    };
    for (const auto& c : cases) {
        const CliRun r = run(c.args, c.input);
        EXPECT_EQ(r.status, 0) << c.args.join(u' ').toStdString() << ": " << r.err.toStdString();
        EXPECT_EQ(r.out, c.out) << c.args.join(u' ').toStdString();
    }
}

TEST_F(MapkeyCli, BadCallsAreToldInGerman) {
    const QString file = write(u"config.pro"_s, kConfig);
    const struct {
        QStringList args;
        int status;
        QString inMessage;
    } cases[] = {
        {{u"mapkeys"_s, dir.filePath(u"fehlt.pro"_s)}, 1, u"existiert nicht"_s},
        {{u"mapkeys"_s}, 2, u"Aufruf: quenfor-cli mapkeys DATEI"_s},
        {{u"mapkey-dups"_s, file, file}, 2, u"Aufruf: quenfor-cli mapkey-dups DATEI"_s},
    };
    for (const auto& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.out.isEmpty()) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(c.inMessage)) << c.args.join(u' ').toStdString() << " -> " << r.err.toStdString();
    }
}
