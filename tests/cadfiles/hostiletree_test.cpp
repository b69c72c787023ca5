// Every folder walk of the program on a tree that real file servers produce: names with blanks,
// umlauts, quotes and line breaks, a link back up the tree, an unreadable folder and a chain of
// folders whose full path is longer than the system accepts in one call. Each walk must end,
// skip what it cannot read, name it, and touch nothing outside the tree.
#include "cadfiles/drawingfoldercheck.h"
#include "cadfiles/findfile.h"
#include "cadfiles/purgetree.h"
#include "knowledge/searchprowalk.h"

#include "../common/qstringprinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <future>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

constexpr int kDeepLevels = 24;
const QByteArray kDeepName(200, 'd');
const QStringList kOddNames = {u"Ordner mit Blanks"_s, u"Ümläute ßÖ"_s, u"quote\"d 'x'"_s, u"neue\nZeile"_s};

bool writeFileAt(int dirFd, const char* name, const QByteArray& bytes) {
    const int fd = ::openat(dirFd, name, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return false;
    const bool ok = ::write(fd, bytes.constData(), size_t(bytes.size())) == bytes.size();
    ::close(fd);
    return ok;
}

// Two versions of a part and a drawing, so purge, finder and checker each have work in a folder.
bool fillFolderAt(int dirFd) {
    return writeFileAt(dirFd, "teil.prt.1", "alt") && writeFileAt(dirFd, "teil.prt.2", "neu") &&
           writeFileAt(dirFd, "teil.drw.1", QByteArray(1200, ' '));
}

class HostileTreeTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        m_root = m_dir.path() + u"/baum"_s;
        ASSERT_TRUE(QDir().mkpath(m_root));
        const QByteArray root = QFile::encodeName(m_root);
        const int rootFd = ::open(root.constData(), O_RDONLY | O_DIRECTORY);
        ASSERT_GE(rootFd, 0);
        ASSERT_TRUE(fillFolderAt(rootFd));
        for (const QString& name : kOddNames) {
            ASSERT_EQ(::mkdirat(rootFd, QFile::encodeName(name).constData(), 0755), 0);
            const int fd = ::openat(rootFd, QFile::encodeName(name).constData(), O_RDONLY | O_DIRECTORY);
            ASSERT_GE(fd, 0);
            ASSERT_TRUE(fillFolderAt(fd));
            ::close(fd);
        }
        ASSERT_EQ(::symlinkat("..", rootFd, "schleife"), 0);
        ASSERT_EQ(::mkdirat(rootFd, "gesperrt", 0755), 0);
        ASSERT_EQ(::mkdirat(rootFd, "gesperrt/innen", 0755), 0);
        ASSERT_EQ(::fchmodat(rootFd, "gesperrt", 0, 0), 0);
        // Entries may be read here but not passed: the subfolder's own status stays hidden.
        ASSERT_EQ(::mkdirat(rootFd, "nur_lesen", 0755), 0);
        ASSERT_EQ(::mkdirat(rootFd, "nur_lesen/innen", 0755), 0);
        ASSERT_EQ(::fchmodat(rootFd, "nur_lesen", 0444, 0), 0);

        // The deep chain is made one level at a time relative to the level above: no single path
        // of it may be longer than the system allows.
        int fd = ::dup(rootFd);
        for (int level = 0; level < kDeepLevels; ++level) {
            ASSERT_EQ(::mkdirat(fd, kDeepName.constData(), 0755), 0);
            const int next = ::openat(fd, kDeepName.constData(), O_RDONLY | O_DIRECTORY);
            ASSERT_GE(next, 0);
            ::close(fd);
            fd = next;
        }
        ASSERT_TRUE(fillFolderAt(fd));
        ::close(fd);
        ::close(rootFd);
        ASSERT_GT(m_root.size() + kDeepLevels * (kDeepName.size() + 1), PATH_MAX);
    }

    void TearDown() override {
        // QTemporaryDir cannot remove what lies beyond the path limit, so the chain goes first.
        const QByteArray root = QFile::encodeName(m_root);
        ::chmod((root + "/gesperrt").constData(), 0755);
        ::chmod((root + "/nur_lesen").constData(), 0755);
        std::vector<int> fds{::open(root.constData(), O_RDONLY | O_DIRECTORY)};
        while (fds.back() >= 0 && int(fds.size()) <= kDeepLevels)
            fds.push_back(::openat(fds.back(), kDeepName.constData(), O_RDONLY | O_DIRECTORY));
        for (int level = int(fds.size()) - 1; level >= 0; --level) {
            if (fds[size_t(level)] < 0)
                continue;
            for (const char* name : {"teil.prt.1", "teil.prt.2", "teil.drw.1"})
                ::unlinkat(fds[size_t(level)], name, 0);
            if (level + 1 < int(fds.size()))
                ::unlinkat(fds[size_t(level)], kDeepName.constData(), AT_REMOVEDIR);
            ::close(fds[size_t(level)]);
        }
    }

    // Runs a walk with a deadline: a walk that loops for ever fails the test instead of hanging it.
    template <typename Walk> auto withinDeadline(Walk walk) {
        auto result = std::async(std::launch::async, walk);
        if (result.wait_for(std::chrono::seconds(60)) != std::future_status::ready) {
            ADD_FAILURE() << "the walk did not end within 60 s";
            std::abort(); // the thread cannot be stopped; leaving would hang in the future's destructor
        }
        return result.get();
    }

    QString oddFolder(int i) const { return m_root + u'/' + kOddNames[i]; }
    bool rootCanReadEverything() const { return geteuid() == 0; }

    QTemporaryDir m_dir;
    QString m_root;
};

TEST_F(HostileTreeTest, SearchProWalkEndsListsOddNamesAndNamesWhatItCannotRead) {
    const SearchProWalkResult result = withinDeadline([&] { return SearchProWalk().run(m_root); });
    EXPECT_TRUE(result.error.isEmpty()) << result.error.toStdString();
    for (int i = 0; i < kOddNames.size(); ++i)
        EXPECT_EQ(result.folders.count(oddFolder(i)), 1) << kOddNames[i].toStdString();
    // The link is a folder the CAD system may search, but the walk never goes through it.
    EXPECT_EQ(result.folders.count(m_root + u"/schleife"_s), 1);
    for (const QString& folder : result.folders)
        EXPECT_FALSE(folder.startsWith(m_root + u"/schleife/"_s)) << folder.toStdString();
    if (!rootCanReadEverything()) {
        EXPECT_TRUE(result.unreadable.contains(m_root + u"/gesperrt"_s)) << testing::PrintToString(result.unreadable);
        EXPECT_TRUE(result.unreadable.contains(m_root + u"/nur_lesen/innen"_s))
            << testing::PrintToString(result.unreadable);
    }
    // The chain is followed as far as paths can go and the first folder beyond is reported.
    EXPECT_FALSE(result.unreadable.isEmpty());
    for (const QString& folder : result.unreadable)
        EXPECT_TRUE(folder.startsWith(m_root)) << folder.toStdString();
}

TEST_F(HostileTreeTest, PurgeEndsDeletesOnlyOldVersionsInsideAndReportsTheRest) {
    const TreeResult result = withinDeadline([&] {
        TreeRun run(m_root, {TreeTask::Purge, {}, true, false});
        run.runToEnd();
        return run.result();
    });
    EXPECT_TRUE(result.error.isEmpty()) << result.error.toStdString();
    EXPECT_FALSE(result.cancelled);
    for (int i = 0; i < kOddNames.size(); ++i) {
        EXPECT_FALSE(QFile::exists(oddFolder(i) + u"/teil.prt.1"_s)) << kOddNames[i].toStdString();
        EXPECT_TRUE(QFile::exists(oddFolder(i) + u"/teil.prt.2"_s)) << kOddNames[i].toStdString();
    }
    EXPECT_FALSE(QFile::exists(m_root + u"/teil.prt.1"_s));
    EXPECT_TRUE(QFile::exists(m_root + u"/teil.prt.2"_s));
    for (const QString& folder : result.folders)
        EXPECT_FALSE(folder.startsWith(m_root + u"/schleife"_s)) << folder.toStdString();
    EXPECT_FALSE(result.unreadable.isEmpty());
    // Nothing outside the tree: the folder above keeps its only entry, the tree.
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"baum"_s});
}

TEST_F(HostileTreeTest, CleanDryRunEndsAndListsOnlyFilesInsideTheTree) {
    const TreeResult result = withinDeadline([&] {
        TreeRun run(m_root, {TreeTask::Clean, u"*.drw.*"_s, true, true});
        run.runToEnd();
        return run.result();
    });
    EXPECT_TRUE(result.error.isEmpty()) << result.error.toStdString();
    for (const QString& file : result.listed)
        EXPECT_TRUE(file.startsWith(m_root) && !file.startsWith(m_root + u"/schleife"_s)) << file.toStdString();
    for (int i = 0; i < kOddNames.size(); ++i)
        EXPECT_TRUE(QFile::exists(oddFolder(i) + u"/teil.drw.1"_s)) << "a dry run deletes nothing";
}

TEST_F(HostileTreeTest, FileFinderEndsFindsOddNamesAndListsUnreadableFolders) {
    const auto [hits, unreadable] = withinDeadline([&] {
        cFindFile finder;
        QStringList found;
        finder.onMatchFound([&](const QString& name, const QString& folder, const QDateTime&, qint32, const QDateTime&,
                                const QDateTime&, const QString&) { found.append(folder + u"|"_s + name); });
        finder.setSSearchpath(m_root);
        finder.setSFileToFind(u"teil.prt.2"_s);
        finder.sStartSearch();
        return std::make_pair(found, finder.unreadableFolders());
    });
    for (int i = 0; i < kOddNames.size(); ++i) {
        const bool found = std::any_of(hits.begin(), hits.end(), [&](const QString& hit) {
            return hit.contains(kOddNames[i]) && hit.endsWith(u"|teil.prt.2"_s);
        });
        EXPECT_TRUE(found) << kOddNames[i].toStdString() << testing::PrintToString(hits);
    }
    EXPECT_FALSE(unreadable.isEmpty());
    if (!rootCanReadEverything()) {
        const bool named = std::any_of(unreadable.begin(), unreadable.end(),
                                       [](const QString& folder) { return folder.contains(u"gesperrt"_s); });
        EXPECT_TRUE(named) << testing::PrintToString(unreadable);
    }
}

TEST_F(HostileTreeTest, DrawingCheckerHandlesOddFolderNames) {
    for (int i = 0; i < kOddNames.size(); ++i) {
        const DrawingFolderCheck check =
            withinDeadline([&] { return checkDrawingFolder(oddFolder(i), u"windows-1252"_s); });
        EXPECT_TRUE(check.error.isEmpty()) << check.error.toStdString();
        EXPECT_EQ(check.listed, 1) << kOddNames[i].toStdString();
        EXPECT_EQ(check.checks.size(), 1) << kOddNames[i].toStdString();
    }
}

// An attacker swaps folders of the tree for links while a purge runs as root: a folder itself for
// a link to a folder outside, and a parent, so that the path of a folder found below it now leads
// outside. The run must skip both and delete nothing outside the tree.
TEST(PurgeTreeSwap, FoldersSwappedForLinksDuringTheRunAreNeverFollowed) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString tree = dir.filePath(u"baum"_s);
    const QString outside = dir.filePath(u"draussen"_s);
    for (const QString& folder : {tree + u"/a"_s, tree + u"/b"_s, tree + u"/p/q"_s, outside, outside + u"/q"_s}) {
        ASSERT_TRUE(QDir().mkpath(folder));
        const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
        ASSERT_GE(fd, 0);
        ASSERT_TRUE(writeFileAt(fd, "geheim.asm.1", "alt") && writeFileAt(fd, "geheim.asm.2", "neu"));
        ::close(fd);
    }
    TreeRun run(tree, {TreeTask::Purge, {}, true, false});
    bool swapped = false;
    run.setAsk([&](const QString& folder) {
        if (!swapped && folder.endsWith(u"/a"_s)) {
            swapped = true;
            // b is swapped for a link to the outside folder; p for a link to it too, so p/q is
            // the outside q now.
            EXPECT_TRUE(QDir(tree).rename(u"b"_s, u"b-alt"_s));
            EXPECT_TRUE(QFile::link(outside, tree + u"/b"_s));
            EXPECT_TRUE(QDir(tree).rename(u"p"_s, u"p-alt"_s));
            EXPECT_TRUE(QFile::link(outside, tree + u"/p"_s));
        }
        return true;
    });
    run.runToEnd();
    ASSERT_TRUE(swapped);

    EXPECT_TRUE(QFile::exists(outside + u"/geheim.asm.1"_s));
    EXPECT_TRUE(QFile::exists(outside + u"/q/geheim.asm.1"_s));
    EXPECT_FALSE(QFile::exists(tree + u"/a/geheim.asm.1"_s));
    EXPECT_TRUE(QFile::exists(tree + u"/b-alt/geheim.asm.2"_s));
    for (const QString& deleted : run.result().deletion.deleted)
        EXPECT_FALSE(deleted.contains(u"/b/"_s) || deleted.contains(u"/p/"_s)) << deleted.toStdString();
    const QString skipped = run.result().skipped.join(u' ');
    EXPECT_TRUE(run.result().skipped.contains(tree + u"/b"_s)) << skipped.toStdString();
    EXPECT_TRUE(run.result().skipped.contains(tree + u"/p/q"_s)) << skipped.toStdString();
}

} // namespace
} // namespace quenfor
