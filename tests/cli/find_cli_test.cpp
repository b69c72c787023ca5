// quenfor-cli find, run as a script would: the finder's hits as tab-separated UTF-8 lines.
#include <QDir>

#include "clitest.h"

using namespace Qt::StringLiterals;

namespace {

class FindCliTest : public CliTestBase {
protected:
    QTemporaryDir tree;

    void SetUp() override {
        ASSERT_TRUE(QDir(tree.path()).mkpath(u"Müller/alt"_s));
        ASSERT_TRUE(QDir(tree.path()).mkpath(u"stand.prt"_s)); // a folder whose name matches
        put(u"bracket.prt.1"_s, "12345");
        put(u"bracket.prt.2"_s, "1234567");
        put(u".versteckt.prt"_s, "");
        put(u"deckel.asm.1"_s, "x");
        put(u"Müller/welle.PRT.3"_s, "abc");
        put(u"Müller/alt/welle.prt.1"_s, "ab");
    }

    void put(const QString& relative, const QByteArray& bytes) const {
        QFile f(tree.filePath(relative));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }

    // The hit line of a file: directory with its closing "/", tab, name, tab, size.
    QString line(const QString& folder, const QString& name, int size) const {
        const QString directory = folder.isEmpty() ? tree.path() + u'/' : tree.filePath(folder) + u'/';
        return directory + u'\t' + name + u'\t' + QString::number(size);
    }

    // The output's lines in a fixed order: the file system decides the order of the hits.
    static QStringList sortedLines(const QByteArray& out) {
        EXPECT_TRUE(out.isEmpty() || out.endsWith('\n'));
        EXPECT_FALSE(out.contains('\r'));
        QStringList lines = QString::fromUtf8(out).split(u'\n', Qt::SkipEmptyParts);
        lines.sort();
        return lines;
    }
    static QStringList sorted(QStringList lines) {
        lines.sort();
        return lines;
    }
};

TEST_F(FindCliTest, ListsTheHitsOfTheWholeTree) {
    const CliRun r = run({u"find"_s, tree.path(), u"*.prt*"_s});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
    EXPECT_EQ(sortedLines(r.out),
              sorted({line({}, u"bracket.prt.1"_s, 5), line({}, u"bracket.prt.2"_s, 7),
                      line({}, u".versteckt.prt"_s, 0), line({}, u"stand.prt"_s, 0),
                      line(u"Müller"_s, u"welle.PRT.3"_s, 3), line(u"Müller/alt"_s, u"welle.prt.1"_s, 2)}));
}

TEST_F(FindCliTest, OptionsNarrowTheSearch) {
    struct Case {
        QStringList options;
        QStringList expected;
    };
    const QList<Case> cases = {
        {{u"--no-subfolders"_s},
         {line({}, u"bracket.prt.1"_s, 5), line({}, u"bracket.prt.2"_s, 7), line({}, u".versteckt.prt"_s, 0),
          line({}, u"stand.prt"_s, 0)}},
        // Files only, no hidden ones.
        {{u"--mask"_s, u"33"_s},
         {line({}, u"bracket.prt.1"_s, 5), line({}, u"bracket.prt.2"_s, 7), line(u"Müller"_s, u"welle.PRT.3"_s, 3),
          line(u"Müller/alt"_s, u"welle.prt.1"_s, 2)}},
        {{u"--mask=16"_s, u"--no-subfolders"_s}, {line({}, u"stand.prt"_s, 0)}},
    };
    for (const Case& c : cases) {
        const CliRun r = run(QStringList{u"find"_s} + c.options + QStringList{tree.path(), u"*.prt*"_s});
        EXPECT_EQ(r.status, 0) << c.options.join(u' ').toStdString() << ": " << r.err.toStdString();
        EXPECT_EQ(sortedLines(r.out), sorted(c.expected)) << c.options.join(u' ').toStdString();
    }
}

TEST_F(FindCliTest, BadInputIsToldAndNothingIsPrinted) {
    struct Case {
        QStringList args;
        int status;
        QString message;
    };
    const QList<Case> cases = {
        {{u"find"_s, tree.filePath(u"fehlt"_s), u"*"_s}, 1, u"existiert nicht"_s},
        {{u"find"_s, tree.path()}, 2, u"Aufruf: quenfor-cli find"_s},
        {{u"find"_s, u"--mask"_s, u"viele"_s, tree.path(), u"*"_s}, 2, u"Die Maske \"viele\" ist keine ganze Zahl."_s},
        {{u"find"_s, u"--mask"_s, u"2147483648"_s, tree.path(), u"*"_s}, 2, u"Fehler bei sFileFlag Property Let"_s},
        {{u"find"_s, tree.path(), u"Müller/*"_s}, 2, u"Fehler bei sFileToFind Property Let"_s},
        {{u"find"_s, tree.path(), QString()}, 2, u"Das Suchmuster ist leer."_s},
        {{u"find"_s, u"--rekursiv"_s, tree.path(), u"*"_s}, 2, u"Aufruf: quenfor-cli find"_s},
    };
    for (const Case& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains(c.message)) << r.err.toStdString();
        EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
    }
}

} // namespace
