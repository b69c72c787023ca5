// purge and clean from the command line: the binary as scripts run it, and the same command lines
// run in process, where the test can point the settings at its own store.

#include "cli/clirunner.h"
#include "clitest.h"
#include "settings/settingsstore.h"

#include <QBuffer>
#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

class PurgeCliTest : public CliTestBase {
protected:
    void SetUp() override {
        // The in-process runs must not read the user's stored pattern list.
        quenfor::SettingsStore::setStoreRoot(path(u"store"_s));
        for (const QString& name : {u"w/p.prt.1"_s, u"w/p.prt.2"_s, u"w/p.prt.10"_s, u"w/q.asm.3"_s, u"w/x.log.2"_s,
                                    u"w/sub/s.drw.9"_s, u"w/sub/s.drw.10"_s, u"w/sub/t.inf"_s, u"w/sub/note.txt"_s}) {
            QDir().mkpath(QFileInfo(path(name)).absolutePath());
            write(name, "x");
        }
    }

    void TearDown() override { quenfor::SettingsStore::setStoreRoot(QString()); }

    // Runs a command line in process; status, stdout and stderr.
    CliRun runHere(const QStringList& args) const {
        QBuffer in, out, err;
        in.open(QIODevice::ReadOnly);
        out.open(QIODevice::WriteOnly);
        err.open(QIODevice::WriteOnly);
        const quenfor::cli::CliStreams io{in, out, err};
        const int status = quenfor::cli::runCli(args, io);
        return {status, out.data(), QString::fromUtf8(err.data())};
    }

    QByteArray lines(const QStringList& names) const {
        QByteArray text;
        for (const QString& name : names)
            text += QDir::toNativeSeparators(path(name)).toUtf8() + '\n';
        return text;
    }
};

TEST_F(PurgeCliTest, dryRunListsAndKeepsEverything) {
    const CliRun flat = runHere({u"purge"_s, u"-n"_s, path(u"w"_s)});
    EXPECT_EQ(flat.status, 0) << flat.err.toStdString();
    EXPECT_EQ(flat.out, lines({u"w/p.prt.1"_s, u"w/p.prt.2"_s}));
    const CliRun tree = runHere({u"purge"_s, u"--dry-run"_s, u"-r"_s, path(u"w"_s)});
    EXPECT_EQ(tree.out, lines({u"w/p.prt.1"_s, u"w/p.prt.2"_s, u"w/sub/s.drw.9"_s}));
    EXPECT_TRUE(QFile::exists(path(u"w/p.prt.1"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/sub/s.drw.9"_s)));
}

TEST_F(PurgeCliTest, purgeDeletesOnlyOlderVersions) {
    const CliRun r = runHere({u"purge"_s, u"-r"_s, path(u"w"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, lines({u"w/p.prt.1"_s, u"w/p.prt.2"_s, u"w/sub/s.drw.9"_s}));
    EXPECT_FALSE(QFile::exists(path(u"w/p.prt.2"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/p.prt.10"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/sub/s.drw.10"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/q.asm.3"_s)));
}

// The separator that tab completion adds must not change which files go.
TEST_F(PurgeCliTest, trailingSeparatorKeepsTheNewestVersion) {
    const CliRun r = run({u"purge"_s, u"-r"_s, path(u"w"_s) + u'/'});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(QFile::exists(path(u"w/p.prt.10"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/sub/s.drw.10"_s)));
    EXPECT_FALSE(QFile::exists(path(u"w/p.prt.1"_s)));
    EXPECT_FALSE(QFile::exists(path(u"w/sub/s.drw.9"_s)));
}

// A Latin-1 name is printed with its own bytes, so a script can act on exactly that file.
TEST_F(PurgeCliTest, latin1NamesArePrintedByteForByte) {
    const QByteArray folder = QFile::encodeName(path(u"w"_s));
    for (const char* name : {"/Geh\xE4use.prt.1", "/Geh\xE4use.prt.2"}) {
        const QByteArray bytes = folder + name;
        FILE* f = std::fopen(bytes.constData(), "w");
        ASSERT_NE(f, nullptr);
        std::fclose(f);
    }
    const CliRun r = run({u"purge"_s, u"-n"_s, path(u"w"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains(folder + "/Geh\xE4use.prt.1\n")) << r.out.toStdString();
    EXPECT_FALSE(r.out.contains("Geh\xE4use.prt.2"));
}

TEST_F(PurgeCliTest, cleanTakesPatternsInEitherPlace) {
    EXPECT_EQ(runHere({u"clean"_s, u"-n"_s, u"-r"_s, path(u"w"_s)}).out, lines({u"w/x.log.2"_s, u"w/sub/t.inf"_s}));
    EXPECT_EQ(runHere({u"clean"_s, u"-n"_s, u"-r"_s, u"--patterns"_s, u"*.txt"_s, path(u"w"_s)}).out,
              lines({u"w/sub/note.txt"_s}));
    EXPECT_EQ(runHere({u"clean"_s, u"-n"_s, u"-r"_s, u"--patterns=*.LOG*"_s, path(u"w"_s)}).out,
              lines({u"w/x.log.2"_s}));
    const CliRun r = runHere({u"clean"_s, path(u"w"_s)});
    EXPECT_EQ(r.out, lines({u"w/x.log.2"_s}));
    EXPECT_FALSE(QFile::exists(path(u"w/x.log.2"_s)));
    EXPECT_TRUE(QFile::exists(path(u"w/sub/t.inf"_s)));
}

TEST_F(PurgeCliTest, badInputIsRefused) {
    struct Case {
        QStringList args;
        int status;
        const char* message;
    };
    const QList<Case> cases{
        {{u"purge"_s, path(u"fehlt"_s)}, 1, "existiert nicht"},
        {{u"purge"_s}, 2, "Aufruf"},
        {{u"clean"_s, u"--patterns"_s, u";"_s, path(u"w"_s)}, 1, "leer"},
    };
    for (const Case& c : cases) {
        const CliRun r = runHere(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(QString::fromUtf8(c.message))) << r.err.toStdString();
    }
    EXPECT_TRUE(QFile::exists(path(u"w/p.prt.1"_s)));
}

} // namespace
