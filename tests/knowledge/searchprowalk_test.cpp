#include "../common/qstringprinting.h"
#include "knowledge/searchprowalk.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// A tree of folders in a temporary folder; paths are given relative to it with "/".
class DiskTree {
public:
    QString root() const { return QDir::toNativeSeparators(m_dir.path()); }
    QString path(const QString& relative) const { return QDir::toNativeSeparators(m_dir.filePath(relative)); }
    QStringList paths(const QStringList& relatives) const {
        QStringList out;
        for (const QString& r : relatives)
            out.append(path(r));
        return out;
    }
    void folders(const QStringList& relatives) const {
        for (const QString& r : relatives)
            EXPECT_TRUE(QDir(m_dir.path()).mkpath(r)) << r.toStdString();
    }
    void file(const QString& relative) const {
        QFile f(m_dir.filePath(relative));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    }
    void link(const QString& target, const QString& relative) const {
        EXPECT_TRUE(QFile::link(target, m_dir.filePath(relative))) << relative.toStdString();
    }

private:
    QTemporaryDir m_dir;
};

// Folders given as a map from folder to its subfolders. Folders named in `vanished` fail the folder
// test when their turn comes, as if deleted during the walk; `infinite` gives every folder two
// children, so only a cancel ends the walk.
class FakeLister : public FolderLister {
public:
    QHash<QString, QList<SubFolder>> tree;
    QSet<QString> vanished;
    QSet<QString> unreadable;
    bool infinite = false;
    mutable int listings = 0;

    FolderListing list(const QString& path) const override {
        ++listings;
        FolderListing listing;
        if (infinite) {
            listing.isFolder = listing.readable = true;
            listing.subfolders = {{u"x"_s, false}, {u"y"_s, false}};
            return listing;
        }
        if (vanished.contains(path) || (!tree.contains(path) && !unreadable.contains(path)))
            return listing;
        listing.isFolder = true;
        listing.readable = !unreadable.contains(path);
        if (listing.readable)
            listing.subfolders = tree.value(path);
        return listing;
    }
    bool isFolder(const QString& path) const override {
        return !vanished.contains(path) && (tree.contains(path) || unreadable.contains(path));
    }
};

// "/s/A" as an absolute native path of this system ("C:\s\A" on Windows): the walk makes its start absolute.
QString fake(const QString& path) {
    return QDir::toNativeSeparators(QDir::rootPath() + path.mid(1));
}

QStringList fakes(const QStringList& paths) {
    QStringList out;
    for (const QString& p : paths)
        out.append(fake(p));
    return out;
}

} // namespace

TEST(SearchProWalk, TwoLevelTreeComesLevelByLevel) {
    DiskTree t;
    t.folders({u"B/B1"_s, u"A/A2"_s, u"A/A1"_s});
    t.file(u"A/model.prt.1"_s); // files are no entries
    const QStringList expected = t.paths({u"A"_s, u"B"_s, u"A/A1"_s, u"A/A2"_s, u"B/B1"_s});

    const SearchProWalkResult r = SearchProWalk().run(t.root());
    EXPECT_EQ(r.folders, expected);
    EXPECT_TRUE(r.error.isEmpty());
    EXPECT_FALSE(r.cancelled);
    // The portable listing gives the same walk, so the platform's fast one holds to the same rules.
    const QtFolderLister qtLister;
    EXPECT_EQ(SearchProWalk(qtLister).run(t.root()).folders, expected);
    // A separator at the end of the start folder changes nothing.
    EXPECT_EQ(SearchProWalk().run(t.root() + QDir::separator()).folders, expected);
}

TEST(SearchProWalk, StartFolderProblems) {
    DiskTree t;
    t.file(u"plain.txt"_s);
    const SearchProWalkResult empty = SearchProWalk().run(t.root());
    EXPECT_TRUE(empty.folders.isEmpty());
    EXPECT_TRUE(empty.error.isEmpty());

    const struct {
        QString start;
        QString error;
    } cases[] = {
        {t.path(u"missing"_s), u"Der Ordner \"%1\" existiert nicht."_s.arg(t.path(u"missing"_s))},
        {t.path(u"plain.txt"_s), u"Der Ordner \"%1\" existiert nicht."_s.arg(t.path(u"plain.txt"_s))},
        {QString(), u"Es ist kein Start-Verzeichnis gewählt."_s},
    };
    for (const auto& c : cases) {
        const SearchProWalkResult r = SearchProWalk().run(c.start);
        EXPECT_EQ(r.error, c.error);
        EXPECT_TRUE(r.folders.isEmpty());
    }
}

TEST(SearchProWalk, RelativeStartGivesFullPaths) {
    DiskTree t;
    t.folders({u"A"_s});
    const QString saved = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(t.root()));
    const QStringList folders = SearchProWalk().run(u"."_s).folders;
    QDir::setCurrent(saved);
    // The temporary folder may lie behind a link, so compare the real paths.
    ASSERT_EQ(folders.size(), 1);
    EXPECT_EQ(QFileInfo(folders[0]).canonicalFilePath(), QFileInfo(t.path(u"A"_s)).canonicalFilePath());
    EXPECT_TRUE(QFileInfo(folders[0]).isAbsolute());
}

TEST(SearchProWalk, OrderOfADirectoryList) {
    // Upper-case forms compared code unit by code unit ("_" after the letters, digits not as numbers),
    // names differing only in case by their spelling.
    QList<SubFolder> folders;
    for (const QString& name : {u"ä"_s, u"b"_s, u"_x"_s, u"a"_s, u"Z"_s, u"Folder2"_s, u"A"_s, u"Folder10"_s, u"1"_s})
        folders.append({name, false});
    sortLikeDirectoryList(folders);
    QStringList names;
    for (const SubFolder& f : folders)
        names.append(f.name);
    EXPECT_EQ(names,
              (QStringList{u"1"_s, u"A"_s, u"a"_s, u"b"_s, u"Folder10"_s, u"Folder2"_s, u"Z"_s, u"_x"_s, u"ä"_s}));
}

TEST(SearchProWalk, HiddenFoldersAndFilesAreLeftOut) {
    DiskTree t;
    t.folders({u".git/objects"_s, u"work/.svn"_s, u"work/parts"_s});
    t.file(u"work/.hidden.prt"_s);
    t.file(u"top.asm"_s);
    const SearchProWalkResult r = SearchProWalk().run(t.root());
    EXPECT_EQ(r.folders, t.paths({u"work"_s, u"work/parts"_s}));
    // Named, so the user learns what the list lacks; what lies below a hidden folder is not looked at.
    EXPECT_EQ(r.hidden, t.paths({u".git"_s, u"work/.svn"_s}));
    const QtFolderLister qtLister;
    EXPECT_EQ(SearchProWalk(qtLister).run(t.root()).hidden, r.hidden);
}

TEST(SearchProWalk, LinkedFoldersAreListedButNotEntered) {
#ifndef Q_OS_UNIX
    GTEST_SKIP() << "symbolic links to folders are made with Unix calls here";
#else
    DiskTree t;
    DiskTree outside;
    outside.folders({u"lib/std"_s});
    t.folders({u"A/A1"_s, u"B"_s});
    t.link(t.root(), u"A/up"_s);            // back to the start: a loop
    t.link(t.path(u"A"_s), u"A/A1/self"_s); // back to its parent: a loop
    t.link(outside.path(u"lib"_s), u"B/lib"_s);
    t.link(t.path(u"nowhere"_s), u"B/dangling"_s);
    const QStringList expected = t.paths({u"A"_s, u"B"_s, u"A/A1"_s, u"A/up"_s, u"B/lib"_s, u"A/A1/self"_s});
    EXPECT_EQ(SearchProWalk().run(t.root()).folders, expected);
    const QtFolderLister qtLister;
    EXPECT_EQ(SearchProWalk(qtLister).run(t.root()).folders, expected);

    // The start folder itself may be a link: the user chose it.
    t.link(t.path(u"A"_s), u"viaLink"_s);
    EXPECT_EQ(SearchProWalk().run(t.path(u"viaLink"_s)).folders,
              (QStringList{t.path(u"viaLink/A1"_s), t.path(u"viaLink/up"_s), t.path(u"viaLink/A1/self"_s)}));
#endif
}

TEST(SearchProWalk, UnreadableFolderContributesNothing) {
#ifndef Q_OS_UNIX
    GTEST_SKIP() << "permission bits are a Unix matter";
#else
    if (geteuid() == 0)
        GTEST_SKIP() << "root reads every folder whatever its permission bits say";
    DiskTree t;
    t.folders({u"A/A1"_s, u"B/B1"_s});
    const QString a = t.path(u"A"_s);
    ASSERT_TRUE(QFile::setPermissions(a, QFileDevice::Permissions()));
    const SearchProWalkResult r = SearchProWalk().run(t.root());
    const QtFolderLister qtLister;
    const SearchProWalkResult viaQt = SearchProWalk(qtLister).run(t.root());
    QFile::setPermissions(a, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(r.folders, t.paths({u"A"_s, u"B"_s, u"B/B1"_s}));
    EXPECT_EQ(r.unreadable, QStringList{a});
    EXPECT_EQ(viaQt.folders, r.folders);
    EXPECT_EQ(viaQt.unreadable, r.unreadable);

    // An unreadable start folder is refused with a message.
    ASSERT_TRUE(QFile::setPermissions(a, QFileDevice::Permissions()));
    const SearchProWalkResult start = SearchProWalk().run(a);
    QFile::setPermissions(a, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    EXPECT_EQ(start.error, u"Der Ordner \"%1\" kann nicht gelesen werden."_s.arg(a));
#endif
}

TEST(SearchProWalk, VanishedFolderRepeatsThePreviousChildren) {
    const QList<SubFolder> ab{{u"A"_s, false}, {u"B"_s, false}};
    const struct {
        const char* name;
        QSet<QString> vanished;
        QStringList expected;
    } cases[] = {
        {"nothing vanishes", {}, {u"/s/A"_s, u"/s/B"_s, u"/s/A/A1"_s, u"/s/B/B1"_s}},
        // B's turn fails: A stays the current folder and its child comes once more.
        {"second vanishes", {fake(u"/s/B"_s)}, {u"/s/A"_s, u"/s/B"_s, u"/s/A/A1"_s, u"/s/A/A1"_s}},
        // A's turn fails before any folder was entered: the start folder's children come again.
        {"first vanishes",
         {fake(u"/s/A"_s)},
         {u"/s/A"_s, u"/s/B"_s, u"/s/A"_s, u"/s/B"_s, u"/s/B/B1"_s, u"/s/B/B1"_s, u"/s/B/B1"_s}},
    };
    for (const auto& c : cases) {
        FakeLister lister;
        lister.tree = {{fake(u"/s"_s), ab},
                       {fake(u"/s/A"_s), {{u"A1"_s, false}}},
                       {fake(u"/s/B"_s), {{u"B1"_s, false}}},
                       {fake(u"/s/A/A1"_s), {}},
                       {fake(u"/s/B/B1"_s), {}}};
        lister.vanished = c.vanished;
        EXPECT_EQ(SearchProWalk(lister).run(fake(u"/s"_s)).folders, fakes(c.expected)) << c.name;
    }
}

TEST(SearchProWalk, LinkedEntriesAreTestedButNotListed) {
    FakeLister lister;
    lister.tree = {{fake(u"/s"_s), {{u"A"_s, false}, {u"L"_s, true}, {u"M"_s, true}}},
                   {fake(u"/s/A"_s), {{u"A1"_s, false}}},
                   {fake(u"/s/A/A1"_s), {}},
                   {fake(u"/s/L"_s), {{u"never"_s, false}}}};
    // L is a folder: entered without listing. M is a dangling link: A1's (empty) children stay.
    const SearchProWalkResult r = SearchProWalk(lister).run(fake(u"/s"_s));
    EXPECT_EQ(r.folders, fakes({u"/s/A"_s, u"/s/L"_s, u"/s/M"_s, u"/s/A/A1"_s}));
    EXPECT_EQ(lister.listings, 3); // the start, A and A1; links are never listed
}

TEST(SearchProWalk, CancelStopsAnEndlessWalk) {
    FakeLister lister;
    lister.infinite = true;
    std::atomic_bool cancel = false;
    qsizetype last = 0;
    bool monotone = true;
    const SearchProWalkResult r = SearchProWalk(lister).run(
        fake(u"/s"_s),
        [&](qsizetype found) {
            monotone = monotone && found >= last;
            last = found;
            if (found >= 1000)
                cancel = true;
        },
        &cancel);
    EXPECT_TRUE(r.cancelled);
    EXPECT_TRUE(monotone);
    EXPECT_GE(r.folders.size(), 1000);
    EXPECT_LT(r.folders.size(), 1200);
    EXPECT_EQ(last, r.folders.size()); // the last report gives the final count
    EXPECT_EQ(r.folders.mid(0, 4), fakes({u"/s/x"_s, u"/s/y"_s, u"/s/x/x"_s, u"/s/x/y"_s}));

    // Cancelled from another thread, as the window does.
    std::atomic_bool stop = false;
    std::atomic<qsizetype> seen = 0;
    SearchProWalkResult threaded;
    std::thread worker([&] {
        threaded = SearchProWalk(lister).run(
            fake(u"/s"_s), [&](qsizetype found) { seen = found; }, &stop);
    });
    while (seen < 5000)
        std::this_thread::yield();
    stop = true;
    worker.join();
    EXPECT_TRUE(threaded.cancelled);
    EXPECT_GE(threaded.folders.size(), 5000);
}

TEST(SearchProWalk, UnreadableFoldersAreReportedInWalkOrder) {
    FakeLister lister;
    lister.tree = {{fake(u"/s"_s), {{u"A"_s, false}, {u"B"_s, false}, {u"C"_s, false}}}, {fake(u"/s/B"_s), {}}};
    lister.unreadable = {fake(u"/s/A"_s), fake(u"/s/C"_s)};
    const SearchProWalkResult r = SearchProWalk(lister).run(fake(u"/s"_s));
    EXPECT_EQ(r.folders, fakes({u"/s/A"_s, u"/s/B"_s, u"/s/C"_s}));
    EXPECT_EQ(r.unreadable, fakes({u"/s/A"_s, u"/s/C"_s}));
}
