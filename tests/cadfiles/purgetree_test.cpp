#include "cadfiles/cleanpatterns.h"
#include "cadfiles/purgeanalysis.h"
#include "cadfiles/purgedelete.h"
#include "cadfiles/purgetree.h"

#include "../common/qstringprinting.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

void touch(const QString& path) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write("x");
}

// Every regular file below root (links not followed), as paths relative to root.
QSet<QString> filesBelow(const QString& root) {
    QSet<QString> files;
    QDirIterator it(root, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!it.fileInfo().isSymLink())
            files.insert(QDir(root).relativeFilePath(path));
    }
    return files;
}

TreeResult runTree(const QString& start, TreeTask task, bool dryRun, const QString& patterns = {}) {
    TreeRun run(start, {task, patterns, true, dryRun});
    run.runToEnd();
    return run.result();
}

struct GeneratedObject {
    QString folder;
    QString stem; // name + type
    QList<int> versions;
};

// A tree of folders holding random objects: names, types and version numbers with and without
// gaps, some objects with versions around 9 and 10 so that text order and number order differ.
QList<GeneratedObject> generateTree(const QString& root, QRandomGenerator& random) {
    static const QStringList names{u"bracket"_s, u"shaft"_s, u"a"_s, u"gear_2"_s, u"lid"_s};
    static const QStringList types{u"prt"_s, u"asm"_s, u"drw"_s, u"frm"_s};
    QStringList folders{root};
    for (int i = 0; i < 5; ++i)
        folders.append(folders[random.bounded(int(folders.size()))] + u"/d"_s + QString::number(i));
    QList<GeneratedObject> objects;
    for (const QString& folder : folders) {
        QDir().mkpath(folder);
        QSet<QString> stems;
        for (int k = random.bounded(0, 7); k > 0; --k) {
            const QString stem =
                names[random.bounded(int(names.size()))] + u'.' + types[random.bounded(int(types.size()))];
            if (stems.contains(stem))
                continue;
            stems.insert(stem);
            GeneratedObject object{folder, stem, {}};
            QSet<int> versions;
            const bool gaps = random.bounded(2) == 0;
            const int first = random.bounded(1, 12);
            for (int n = random.bounded(1, 8), v = first; n > 0; --n, v += gaps ? random.bounded(1, 5) : 1)
                versions.insert(v);
            object.versions = versions.values();
            for (int v : std::as_const(object.versions))
                touch(folder + u'/' + stem + u'.' + QString::number(v));
            objects.append(object);
        }
    }
    return objects;
}

TEST(PurgeTree, neverDeletesTheHighestVersionAndDeletesAllOlderOnes) {
    QRandomGenerator random(777);
    for (int round = 0; round < 25; ++round) {
        QTemporaryDir dir;
        ASSERT_TRUE(dir.isValid());
        const QString root = dir.filePath(u"tree"_s);
        const QList<GeneratedObject> objects = generateTree(root, random);
        // A read-only old version must go all the same.
        for (const GeneratedObject& object : objects) {
            if (object.versions.size() > 1) {
                const int oldest = *std::min_element(object.versions.begin(), object.versions.end());
                QFile::setPermissions(object.folder + u'/' + object.stem + u'.' + QString::number(oldest),
                                      QFile::ReadOwner | QFile::ReadGroup);
            }
        }

        const TreeResult dryRun = runTree(root, TreeTask::Purge, true);
        const TreeResult result = runTree(root, TreeTask::Purge, false);
        EXPECT_EQ(dryRun.listed, result.listed);
        EXPECT_TRUE(result.deletion.failed.isEmpty()) << result.deletion.failed.join(u' ').toStdString();

        for (const GeneratedObject& object : objects) {
            const int highest = *std::max_element(object.versions.begin(), object.versions.end());
            for (int v : object.versions) {
                const QString path = object.folder + u'/' + object.stem + u'.' + QString::number(v);
                EXPECT_EQ(QFile::exists(path), v == highest) << path.toStdString();
            }
        }
    }
}

TEST(PurgeTree, staysInsideTheTreeAndSurvivesLinks) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString outside = dir.path();
    const QString root = dir.filePath(u"tree"_s);
    for (const QString& name : {u"o.prt.1"_s, u"o.prt.2"_s, u"o.log"_s})
        touch(outside + u'/' + name);
    touch(dir.filePath(u"sibling/s.prt.1"_s));
    touch(dir.filePath(u"sibling/s.prt.2"_s));
    touch(root + u"/sub/in.prt.1"_s);
    touch(root + u"/sub/in.prt.2"_s);
    touch(root + u"/sub/x.log"_s);
    // A link to the folder above the tree, a link loop, and a linked old version pointing outside.
    ASSERT_TRUE(QFile::link(outside, root + u"/sub/up"_s));
    ASSERT_TRUE(QFile::link(root + u"/sub"_s, root + u"/sub/loop"_s));
    ASSERT_TRUE(QFile::link(outside + u"/o.prt.1"_s, root + u"/sub/o.prt.1"_s));
    touch(root + u"/sub/o.prt.2"_s);
    const QSet<QString> before = filesBelow(outside);

    const TreeResult purge = runTree(root, TreeTask::Purge, false);
    const TreeResult clean = runTree(root, TreeTask::Clean, false, defaultCleaningPatterns());

    EXPECT_EQ(purge.folders, (QStringList{root, root + u"/sub"_s}));
    EXPECT_EQ(purge.deletion.deleted, QStringList{root + u"/sub/in.prt.1"_s});
    EXPECT_EQ(clean.deletion.deleted, QStringList{root + u"/sub/x.log"_s});
    QSet<QString> expected = before;
    expected.remove(u"tree/sub/in.prt.1"_s);
    expected.remove(u"tree/sub/x.log"_s);
    EXPECT_EQ(filesBelow(outside), expected);
    EXPECT_TRUE(QFileInfo(root + u"/sub/o.prt.1"_s).isSymLink());
}

// Names of a Latin-1 share are no UTF-8. Each must keep its bytes from listing to delete: the
// older Latin-1 version goes, and a valid name that a lossy decoding would confuse with it (the
// only version of its own object) stays.
TEST(PurgeTree, latin1NamesAreDeletedByTheirOwnBytes) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QByteArray folder = QFile::encodeName(dir.path());
    const QByteArray sub = folder + "/Geh\xE4use";
    ASSERT_EQ(::mkdir(sub.constData(), 0755), 0);
    const QList<QByteArray> names = {
        "Geh\xE4use.prt.1", "Geh\xE4use.prt.2",          "inv\xEF\xBF\xBD.prt.1",     "inv\xE4.prt.1",
        "inv\xE4.prt.2",    "Geh\xE4use/teil\xFC.asm.3", "Geh\xE4use/teil\xFC.asm.4", "notiz\xE4.bak"};
    for (const QByteArray& name : names) {
        const int fd = ::open((folder + '/' + name).constData(), O_WRONLY | O_CREAT | O_EXCL, 0644);
        ASSERT_GE(fd, 0) << name.toHex().toStdString();
        ::close(fd);
    }
    const auto exists = [&](const QByteArray& name) { return ::access((folder + '/' + name).constData(), F_OK) == 0; };

    const TreeResult purge = runTree(dir.path(), TreeTask::Purge, false);
    EXPECT_EQ(purge.deletion.deleted.size(), 3) << purge.deletion.summary().toStdString();
    EXPECT_TRUE(purge.deletion.vanished.isEmpty());
    EXPECT_FALSE(exists("Geh\xE4use.prt.1"));
    EXPECT_FALSE(exists("inv\xE4.prt.1"));
    EXPECT_FALSE(exists("Geh\xE4use/teil\xFC.asm.3"));
    for (const QByteArray& kept : {QByteArray("Geh\xE4use.prt.2"), QByteArray("inv\xEF\xBF\xBD.prt.1"),
                                   QByteArray("inv\xE4.prt.2"), QByteArray("Geh\xE4use/teil\xFC.asm.4")})
        EXPECT_TRUE(exists(kept)) << kept.toHex().toStdString();

    const TreeResult clean = runTree(dir.path(), TreeTask::Clean, false, u"*.bak"_s);
    EXPECT_EQ(clean.deletion.deleted.size(), 1);
    EXPECT_FALSE(exists("notiz\xE4.bak"));
    EXPECT_EQ(deleteFiles({dir.path() + u"/Geh"_s + QChar(0xDCE4) + u"use.prt.2"_s}).deleted.size(), 1);
    EXPECT_FALSE(exists("Geh\xE4use.prt.2"));
}

TEST(PurgeTree, askedFoldersAreSkippedOnNo) {
    QTemporaryDir dir;
    const QString root = dir.path();
    touch(root + u"/a.log"_s);
    touch(root + u"/keep/b.log"_s);
    TreeRun run(root, {TreeTask::Clean, u"*.log*"_s, true, false});
    QStringList asked;
    run.setAsk([&](const QString& folder) {
        asked.append(folder);
        return !folder.endsWith(u"keep"_s);
    });
    run.runToEnd();
    EXPECT_EQ(asked, (QStringList{root, root + u"/keep"_s}));
    EXPECT_EQ(run.result().skipped, QStringList{root + u"/keep"_s});
    EXPECT_FALSE(QFile::exists(root + u"/a.log"_s));
    EXPECT_TRUE(QFile::exists(root + u"/keep/b.log"_s));
}

TEST(PurgeTree, cancelStopsBeforeTheNextFolder) {
    QTemporaryDir dir;
    touch(dir.filePath(u"a/p.prt.1"_s));
    touch(dir.filePath(u"a/p.prt.2"_s));
    TreeRun run(dir.path(), {TreeTask::Purge, {}, true, false});
    run.runToEnd([] { return true; });
    EXPECT_TRUE(run.result().cancelled);
    EXPECT_TRUE(QFile::exists(dir.filePath(u"a/p.prt.1"_s)));
}

TEST(PurgeTree, missingStartFolderIsAGermanError) {
    TreeRun run(u"/nicht/da/wirklich"_s, {});
    EXPECT_FALSE(run.step());
    EXPECT_TRUE(run.result().error.contains(u"existiert nicht"_s));
}

TEST(PurgeDelete, vanishedFileIsSkippedAndReported) {
    QTemporaryDir dir;
    touch(dir.filePath(u"p.prt.1"_s));
    touch(dir.filePath(u"p.prt.2"_s));
    const QStringList listed = analyseFolder(dir.path());
    ASSERT_EQ(listed, QStringList{dir.filePath(u"p.prt.1"_s)});
    QFile::remove(listed.front());
    const DeleteReport report = deleteFiles(listed);
    EXPECT_EQ(report.vanished, listed);
    EXPECT_TRUE(report.deleted.isEmpty());
    EXPECT_TRUE(QFile::exists(dir.filePath(u"p.prt.2"_s)));
    EXPECT_EQ(report.summary(), u"0 gelöscht, 1 nicht mehr vorhanden"_s);
}

TEST(PurgeDelete, clearReadOnlyLeavesLinkTargetsAlone) {
    QTemporaryDir dir;
    const QString target = dir.filePath(u"target"_s);
    touch(target);
    QFile::setPermissions(target, QFile::ReadOwner);
    QFile::link(target, dir.filePath(u"link"_s));
    EXPECT_FALSE(clearReadOnly(dir.filePath(u"link"_s)));
    EXPECT_FALSE(QFileInfo(target).permissions() & QFile::WriteOwner);
    EXPECT_TRUE(clearReadOnly(target));
    EXPECT_TRUE(QFileInfo(target).permissions() & QFile::WriteOwner);
}

struct PatternCase {
    const char* label;
    QString text;
    QStringList extensions;
};

class PatternLoad : public ::testing::TestWithParam<PatternCase> {};

TEST_P(PatternLoad, cutsEverySevenCharacters) {
    EXPECT_EQ(extensionsFromPatterns(GetParam().text), GetParam().extensions);
}

INSTANTIATE_TEST_SUITE_P(Texts, PatternLoad,
                         ::testing::Values(PatternCase{"bomTxt", u"*.bom*;*.txt*"_s, {u"bom"_s, u"txt"_s}},
                                           PatternCase{
                                               "longExtensionCutWrong", u"*.bomx*;*.txt*"_s, {u"bom"_s, u".tx"_s}},
                                           PatternCase{"empty", u""_s, {}}, PatternCase{"tooShort", u"*.b"_s, {}},
                                           PatternCase{"short", u"*.bo"_s, {u"bo"_s}}),
                         [](const auto& info) { return std::string(info.param.label); });

TEST(CleaningPatterns, buildAndMatch) {
    EXPECT_EQ(patternsFromExtensions({u"bom"_s, u"log"_s}), u"*.bom*;*.log*"_s);
    EXPECT_EQ(patternsFromExtensions(extensionsFromPatterns(defaultCleaningPatterns())), defaultCleaningPatterns());
    EXPECT_EQ(patternsFromExtensions({}), QString());
    const CleaningPatterns patterns(defaultCleaningPatterns());
    EXPECT_EQ(patterns.filter({u"x.log.3"_s, u"X.LOG"_s, u"a.prt.1"_s, u"trail.txt.1"_s, u"info.inf"_s}),
              (QStringList{u"x.log.3"_s, u"X.LOG"_s, u"info.inf"_s}));
    EXPECT_TRUE(CleaningPatterns(u" ; ;"_s).isEmpty());
    EXPECT_FALSE(CleaningPatterns(QString()).matches(u"anything"_s));
}

TEST(CleaningPatterns, followTheFindersWildcardRule) {
    const struct {
        QString pattern;
        QString name;
        bool matches;
    } cases[] = {
        {u"*.*"_s, u"ohnepunkt"_s, true}, // "*.*" is "*"
        {u"*."_s, u"ohnepunkt"_s, true},         {u"*."_s, u"a.log"_s, false},
        {u"a[1].log*"_s, u"a[1].log.2"_s, true},                                  // brackets are plain characters
        {u"a[1].log*"_s, u"a1.log"_s, false},    {u"x?.log"_s, u"x.log"_s, true}, // "?" may be nothing before a dot
        {u"*.LOG*"_s, u"trail.log.12"_s, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE((c.pattern + u" / "_s + c.name).toStdString());
        EXPECT_EQ(CleaningPatterns(c.pattern).matches(c.name), c.matches);
        EXPECT_EQ(FindPattern(c.pattern).matches(c.name), c.matches);
    }
}

} // namespace
} // namespace quenfor
