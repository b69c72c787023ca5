// "favorite" and "replace" run through the real quenfor-cli binary, as an administrator's script
// calls them.
#include <QDir>

#include "clitest.h"

using namespace Qt::StringLiterals;

namespace {

class EditCommandsCli : public CliTestBase {};

TEST_F(EditCommandsCli, FavoriteGivesPathAndName) {
    const QString folder = dir.filePath(u"Norm teile"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    const struct {
        QString line;
        QByteArray out;
        bool folderMissing;
    } cases[] = {
        {u"browser_favorite "_s + folder + u" Norm "_s, (folder + u"\nNorm\n"_s).toUtf8(), false},
        {u"BROWSER_FAVORITE C:\\Program Files\\parts Teile"_s, "C:\\Program Files\\parts\nTeile\n", true},
        {u"browser_favorite C:\\Program Files\\parts T"_s, "C:\\Program Files\\parts\n\n", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.line.toStdString());
        const CliRun r = run({u"favorite"_s, c.line});
        EXPECT_EQ(r.status, 0) << r.err.toStdString();
        EXPECT_EQ(r.out, c.out);
        EXPECT_EQ(r.err.contains(u"existiert nicht"_s), c.folderMissing) << r.err.toStdString();
    }

    const CliRun option = run({u"favorite"_s, u"display shade"_s});
    EXPECT_EQ(option.status, 1);
    EXPECT_TRUE(option.out.isEmpty());
    EXPECT_TRUE(option.err.contains(u"keine Favoritenzeile"_s)) << option.err.toStdString();
    EXPECT_EQ(run({u"favorite"_s}).status, 2);
}

TEST_F(EditCommandsCli, ReplaceWritesLikeTheOtherDocumentCommands) {
    // Windows-1252 bytes (ä = E4) must come back as they were.
    const QByteArray file = "pro_format_dir C:\\3d\\Format\r\n! M\xE4rz\r\n\r\nsearch_path c:\\3D\\teile c:\\3d\r\n";
    const QByteArray expected =
        "pro_format_dir D:\\cad\\Format\r\n! M\xE4rz\r\n\r\nsearch_path D:\\cad\\teile c:\\3d\r\n";
    const QString name = write(u"config.pro"_s, file);

    const CliRun out = run({u"replace"_s, u"c:\\3d"_s, u"D:\\cad"_s, name});
    EXPECT_EQ(out.status, 0) << out.err.toStdString();
    EXPECT_EQ(out.out, expected);
    EXPECT_EQ(out.err, u"2 ersetzt\n"_s);
    EXPECT_EQ(read(name), file); // without -i the file stays

    const QString copy = dir.filePath(u"copy.pro"_s);
    EXPECT_EQ(run({u"replace"_s, u"c:\\3d"_s, u"D:\\cad"_s, name, u"-o"_s, copy}).status, 0);
    EXPECT_EQ(read(copy), expected);

    const CliRun inPlace = run({u"replace"_s, u"-i"_s, u"c:\\3d"_s, u"D:\\cad"_s, name});
    EXPECT_EQ(inPlace.status, 0);
    EXPECT_TRUE(inPlace.out.isEmpty());
    EXPECT_EQ(read(name), expected);

    // Standard input; an empty find text turns every non-empty line into a comment.
    const CliRun comments = run({u"replace"_s, QString(), u"! "_s, u"-"_s}, "a\r\n\r\nb\r\n");
    EXPECT_EQ(comments.out, "! a\r\n\r\n! b\r\n");
    EXPECT_EQ(comments.err, u"2 ersetzt\n"_s);

    const CliRun none = run({u"replace"_s, u"zz"_s, u"y"_s, u"-"_s}, "a\r\n");
    EXPECT_EQ(none.out, "a\r\n");
    EXPECT_EQ(none.err, u"0 ersetzt\n"_s);
}

TEST_F(EditCommandsCli, ReplaceRefusesBadCallsAndKeepsTheFile) {
    const QString name = write(u"config.pro"_s, "a\r\n");
    const struct {
        QStringList args;
        int status;
        QString message;
    } cases[] = {
        {{u"replace"_s, u"a"_s, name}, 2, u"Aufruf: quenfor-cli replace"_s},
        {{u"replace"_s, u"-i"_s, u"a"_s, u"b"_s, u"-"_s}, 2, u"Standardeingabe"_s},
        {{u"replace"_s, u"a"_s, u"b"_s, dir.filePath(u"fehlt.pro"_s)}, 1, u"fehlt.pro"_s},
        {{u"replace"_s, u"a"_s, u"b"_s, name, u"-o"_s, dir.filePath(u"kein/ordner/x.pro"_s)}, 1, QString()},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.args.join(u' ').toStdString());
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status);
        EXPECT_FALSE(r.err.isEmpty());
        EXPECT_TRUE(r.err.contains(c.message)) << r.err.toStdString();
        EXPECT_FALSE(r.err.contains(u"ersetzt"_s)); // nothing was written, so nothing is reported
    }
    EXPECT_EQ(read(name), "a\r\n");
}

} // namespace
