// quenfor-cli searchpro, run as a script would: the generator's list written as a search.pro.
#include <QDir>

#include "clitest.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class SearchProCliTest : public CliTestBase {
protected:
    QTemporaryDir tree;

    void SetUp() override {
        for (const QString& folder : {u"B/B1"_s, u"A/A2"_s, u"A/A1"_s, u"Müller"_s})
            ASSERT_TRUE(QDir(tree.path()).mkpath(folder));
    }

    // The bytes of search.pro lines as the program saves them: windows-1252, CR LF.
    QByteArray lines(const QStringList& relatives) const {
        QByteArray bytes;
        for (const QString& r : relatives)
            bytes += QDir::toNativeSeparators(tree.filePath(r)).toLatin1() + "\r\n";
        return bytes;
    }
};

TEST_F(SearchProCliTest, HiddenFoldersAreNamedOnStderr) {
    ASSERT_TRUE(QDir(tree.path()).mkpath(u"A/.svn/tmp"_s));
    const CliRun r = run({u"searchpro"_s, tree.path()});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, lines({u"A"_s, u"B"_s, u"Müller"_s, u"A/A1"_s, u"A/A2"_s, u"B/B1"_s}));
    EXPECT_EQ(r.err, u"Versteckt, nicht aufgeführt: "_s + QDir::toNativeSeparators(tree.filePath(u"A/.svn"_s)) + u'\n');
}

TEST_F(SearchProCliTest, WritesTheListLikeASavedDocument) {
    const QByteArray expected = lines({u"A"_s, u"B"_s, u"Müller"_s, u"A/A1"_s, u"A/A2"_s, u"B/B1"_s});
    ASSERT_TRUE(expected.contains("M\xFCller\r\n")); // one byte for the umlaut: the code page, not UTF-8

    const CliRun r = run({u"searchpro"_s, tree.path()});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, expected);
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();

    const QString out = dir.filePath(u"search.pro"_s);
    const CliRun toFile = run({u"searchpro"_s, u"-o"_s, out, tree.path()});
    EXPECT_EQ(toFile.status, 0) << toFile.err.toStdString();
    EXPECT_TRUE(toFile.out.isEmpty());
    QFile written(out);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), expected);
}

TEST_F(SearchProCliTest, EmptyFolderGivesAnEmptyFile) {
    const CliRun r = run({u"searchpro"_s, tree.filePath(u"A/A1"_s)});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
}

TEST_F(SearchProCliTest, RefusesBadCalls) {
    const QString missing = tree.filePath(u"fehlt"_s);
    const struct {
        QStringList args;
        int status;
        QString message;
    } cases[] = {
        {{u"searchpro"_s, missing}, 1, u"Der Ordner \"%1\" existiert nicht."_s.arg(QDir::toNativeSeparators(missing))},
        {{u"searchpro"_s}, 2, u"Aufruf: quenfor-cli searchpro"_s},
        {{u"searchpro"_s, tree.path(), tree.path()}, 2, u"Aufruf: quenfor-cli searchpro"_s},
        {{u"searchpro"_s, u"-i"_s, tree.path()}, 2, u"Aufruf: quenfor-cli searchpro"_s},
    };
    for (const auto& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.startsWith(c.message)) << r.err.toStdString();
        EXPECT_TRUE(r.out.isEmpty());
    }

    // A failed write leaves the previous file as it was.
    const QString blocked = dir.filePath(u"blocked"_s);
    ASSERT_TRUE(QDir().mkpath(blocked + u"/search.pro"_s));
    const CliRun r = run({u"searchpro"_s, u"-o"_s, blocked + u"/search.pro"_s, tree.path()});
    EXPECT_EQ(r.status, 1);
    EXPECT_FALSE(r.err.isEmpty());
    EXPECT_TRUE(QFileInfo(blocked + u"/search.pro"_s).isDir());
}

TEST_F(SearchProCliTest, UnreadableFolderIsNamedOnStderr) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root reads every folder whatever its permission bits say";
    const QString locked = tree.filePath(u"A"_s);
    ASSERT_TRUE(QFile::setPermissions(locked, QFileDevice::Permissions()));
    const CliRun r = run({u"searchpro"_s, tree.path()});
    QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, lines({u"A"_s, u"B"_s, u"Müller"_s, u"B/B1"_s}));
    EXPECT_EQ(r.err, u"Nicht lesbar, seine Unterverzeichnisse fehlen: %1\n"_s.arg(QDir::toNativeSeparators(locked)));
}

} // namespace
