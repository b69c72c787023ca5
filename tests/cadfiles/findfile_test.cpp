#include "../common/qstringprinting.h"
#include "cadfiles/findfile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct Hit {
    QString directory; // relative to the tree's root, with its closing "/"
    QString name;
    qint32 size = 0;
    QDateTime lastWrite;
};

// A folder tree in a temporary folder; paths are given relative to it.
class FindFileTest : public ::testing::Test {
protected:
    QTemporaryDir m_dir;
    cFindFile m_finder;
    QList<Hit> m_hits;
    int m_stopQuestions = 0;

    QString root() const { return m_dir.path(); }
    QString path(const QString& relative) const { return m_dir.filePath(relative); }

    void folders(const QStringList& relatives) const {
        for (const QString& r : relatives)
            ASSERT_TRUE(QDir(root()).mkpath(r)) << r.toStdString();
    }
    void file(const QString& relative, qint64 size = 0) const {
        QFile f(path(relative));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << relative.toStdString();
        ASSERT_TRUE(f.resize(size));
    }
    void link(const QString& target, const QString& relative) const {
        ASSERT_TRUE(QFile::link(target, path(relative))) << relative.toStdString();
    }

    void SetUp() override {
        m_finder.onMatchFound([this](const QString& name, const QString& directory, const QDateTime&, qint32 size,
                                     const QDateTime&, const QDateTime& lastWrite, const QString& shortName) {
            EXPECT_TRUE(shortName.isEmpty());
            EXPECT_TRUE(directory.startsWith(root() + u'/')) << directory.toStdString();
            m_hits.append({directory.mid(root().size() + 1), name, size, lastWrite});
        });
        m_finder.onStopSearch([this](bool&) { ++m_stopQuestions; });
    }

    // "directory/name" of every hit, in the order reported.
    QStringList search(const QString& pattern, const QString& start = QString()) {
        m_hits.clear();
        m_stopQuestions = 0;
        m_finder.setSSearchpath(start.isEmpty() ? root() : start);
        m_finder.setSFileToFind(pattern);
        m_finder.sStartSearch();
        QStringList found;
        for (const Hit& h : m_hits)
            found.append(h.directory + h.name);
        return found;
    }

    static QStringList sorted(QStringList list) {
        list.sort();
        return list;
    }
};

TEST_F(FindFileTest, FindsMatchesInTheWholeTreeDepthFirst) {
    folders({u"a/deep"_s, u"b"_s});
    for (const QString& f :
         {u"top.prt.1"_s, u"top.asm.1"_s, u"a/x.prt.2"_s, u"a/deep/y.PRT.10"_s, u"b/z.prt"_s, u"b/z.drw"_s})
        file(f);
    const QStringList found = search(u"*.prt*"_s);
    EXPECT_EQ(sorted(found), sorted({u"top.prt.1"_s, u"a/x.prt.2"_s, u"a/deep/y.PRT.10"_s, u"b/z.prt"_s}));
    // Files of a folder come before those of its subfolders, and a subtree ends before the next.
    EXPECT_EQ(found.first(), u"top.prt.1"_s);
    const qsizetype x = found.indexOf(u"a/x.prt.2"_s);
    EXPECT_EQ(found.indexOf(u"a/deep/y.PRT.10"_s), x + 1);
    EXPECT_EQ(m_stopQuestions, 3);
}

TEST_F(FindFileTest, TrailingSeparatorIsOptional) {
    folders({u"sub"_s});
    file(u"sub/a.prt"_s);
    const QStringList without = search(u"*"_s, path(u"sub"_s));
    ASSERT_EQ(m_hits.size(), 1);
    EXPECT_EQ(m_hits[0].directory, u"sub/"_s);
    EXPECT_EQ(search(u"*"_s, path(u"sub/"_s)), without);
    EXPECT_EQ(m_hits[0].directory, u"sub/"_s);
}

TEST_F(FindFileTest, WithoutSubfoldersNoStopQuestion) {
    folders({u"sub"_s});
    file(u"a.prt"_s);
    file(u"sub/b.prt"_s);
    m_finder.setSInclSubfolders(false);
    EXPECT_EQ(search(u"*.prt"_s), QStringList{u"a.prt"_s});
    EXPECT_EQ(m_stopQuestions, 0);
    EXPECT_EQ(m_finder.sSearchpath(), root());
}

TEST_F(FindFileTest, SearchpathHoldsTheLastFolderEntered) {
    folders({u"only/inner"_s});
    search(u"*"_s);
    EXPECT_EQ(m_finder.sSearchpath(), root() + u"/only/inner"_s);
    // A second search without setting it again starts there.
    file(u"top.prt"_s);
    m_finder.sStartSearch();
    EXPECT_TRUE(std::none_of(m_hits.begin(), m_hits.end(), [](const Hit& h) { return h.name == u"top.prt"; }));
}

TEST_F(FindFileTest, AttributeMaskSelectsEntries) {
    folders({u"dir.prt"_s});
    file(u"plain.prt"_s);
    file(u"locked.prt"_s);
    file(u".hidden.prt"_s);
    ASSERT_TRUE(QFile::setPermissions(path(u"locked.prt"_s), QFile::ReadOwner | QFile::ReadUser));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe.prt"_s)).constData(), 0644), 0);
    link(path(u"missing"_s), u"broken.prt"_s);
    m_finder.setSInclSubfolders(false);

    struct Case {
        qint32 mask;
        QStringList expected;
    };
    const QList<Case> cases = {
        {439, {u".hidden.prt"_s, u"broken.prt"_s, u"dir.prt"_s, u"locked.prt"_s, u"pipe.prt"_s, u"plain.prt"_s}},
        {32 + 1, {u"locked.prt"_s, u"plain.prt"_s}},
        {32, {u"plain.prt"_s}},
        {32 + 2, {u".hidden.prt"_s, u"plain.prt"_s}},
        {16, {u"dir.prt"_s}},
        {128, {u"broken.prt"_s, u"pipe.prt"_s}},
        {0, {}},
    };
    for (const Case& c : cases) {
        m_finder.setSFileFlag(c.mask);
        EXPECT_EQ(sorted(search(u"*.prt"_s)), c.expected) << "mask " << c.mask;
    }
}

TEST_F(FindFileTest, SizeAndTimesOfAHit) {
    file(u"ten.prt"_s, 10);
    folders({u"folder.prt"_s});
    const QDateTime written(QDate(2021, 3, 4), QTime(5, 6, 7, 890), Qt::UTC);
    {
        QFile f(path(u"ten.prt"_s));
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        ASSERT_TRUE(f.setFileTime(written, QFileDevice::FileModificationTime));
    }
    m_finder.setSInclSubfolders(false);
    search(u"*.prt"_s);
    ASSERT_EQ(m_hits.size(), 2);
    for (const Hit& h : m_hits) {
        if (h.name == u"ten.prt") {
            EXPECT_EQ(h.size, 10);
            // UTC clock values in whole seconds.
            EXPECT_EQ(h.lastWrite, QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC));
        } else {
            EXPECT_EQ(h.size, 0); // folders have no size
        }
    }
}

TEST_F(FindFileTest, FileOfFourGibibytesAndTenBytesReportsNine) {
    file(u"huge.prt"_s);
    {
        QFile f(path(u"huge.prt"_s));
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        if (!f.resize(4294967296LL + 10)) // sparse: takes no space where the file system allows it
            GTEST_SKIP() << "no sparse file of 4 GiB here";
    }
    search(u"huge.prt"_s);
    ASSERT_EQ(m_hits.size(), 1);
    EXPECT_EQ(m_hits[0].size, 9);
}

TEST_F(FindFileTest, StopEndsOneLevelAndTheListenerEndsTheRest) {
    folders({u"s1/t1"_s, u"s1/t2"_s, u"s2"_s});
    file(u"s1/t1/a.prt"_s);
    file(u"s1/t2/b.prt"_s);
    file(u"s2/c.prt"_s);

    // Stop at the first question: nothing below the start folder is searched.
    m_finder.onStopSearch([](bool& stop) {
        EXPECT_FALSE(stop);
        stop = true;
    });
    EXPECT_TRUE(search(u"*.prt"_s).isEmpty());

    // Stop only the questions inside s1: s1's subfolders are skipped, s2 is still searched.
    m_finder.onStopSearch([this](bool& stop) { stop = m_finder.sSearchpath().endsWith(u"s1"); });
    EXPECT_EQ(search(u"*.prt"_s), QStringList{u"s2/c.prt"_s});
}

TEST_F(FindFileTest, CancelEndsEveryLevelAtOnce) {
    folders({u"a"_s, u"b"_s, u"c"_s});
    for (const QString& f : {u"a/1.prt"_s, u"a/2.prt"_s, u"b/3.prt"_s, u"c/4.prt"_s})
        file(f);
    qint64 progressCalls = 0;
    m_finder.onProgress([&](const QString&, qint64 entries) { progressCalls = entries; });
    m_finder.onMatchFound([this](const QString& name, const QString&, const QDateTime&, qint32, const QDateTime&,
                                 const QDateTime&, const QString&) {
        m_hits.append({QString(), name, 0, {}});
        m_finder.requestCancel();
    });
    search(u"*.prt"_s);
    EXPECT_EQ(m_hits.size(), 1);
    EXPECT_TRUE(m_finder.wasCancelled());
    EXPECT_GE(progressCalls, 1);

    // The next search clears the request.
    m_finder.onMatchFound([this](const QString& name, const QString&, const QDateTime&, qint32, const QDateTime&,
                                 const QDateTime&, const QString&) {
        m_hits.append({QString(), name, 0, {}});
    });
    EXPECT_EQ(search(u"*.prt"_s).size(), 4);
    EXPECT_FALSE(m_finder.wasCancelled());
    EXPECT_EQ(progressCalls, 3 + 4); // one call per entry read
}

TEST_F(FindFileTest, LinkLoopsEndAndEveryFolderIsSearchedOnce) {
    QTemporaryDir outside;
    ASSERT_TRUE(QFile(outside.filePath(u"shared.prt"_s)).open(QIODevice::WriteOnly));
    folders({u"a/b"_s, u"x"_s, u"y"_s});
    file(u"a/b/deep.prt"_s);
    link(root(), u"a/b/up"_s);           // back to the start
    link(path(u"a"_s), u"a/b/parent"_s); // to the folder above
    link(path(u"y"_s), u"x/toY"_s);      // x and y point at each other
    link(path(u"x"_s), u"y/toX"_s);
    link(outside.path(), u"a/library"_s); // a shared folder elsewhere is searched
    file(u"self.prt"_s);

    const QStringList found = search(u"*.prt"_s);
    EXPECT_EQ(found.count(u"a/b/deep.prt"_s), 1);
    EXPECT_EQ(found.count(u"self.prt"_s), 1);
    EXPECT_EQ(found.count(u"a/library/shared.prt"_s), 1);
    EXPECT_EQ(found.size(), 3) << found.join(u", "_s).toStdString();
}

TEST_F(FindFileTest, ADeepFolderChainIsSearchedToTheBottom) {
    // 1200 levels of one-letter folders: the file at the bottom is found, every level is asked about.
    // How long it takes is measured by `purge_bench deepfind` (bench/README.md).
    constexpr int kLevels = 1200;
    const int rootFd = ::open(QFile::encodeName(root()).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(rootFd, 0);
    int fd = rootFd;
    for (int level = 0; level < kLevels; ++level) {
        ASSERT_EQ(::mkdirat(fd, "k", 0755), 0);
        const int next = ::openat(fd, "k", O_RDONLY | O_DIRECTORY);
        ASSERT_GE(next, 0);
        ::close(fd);
        fd = next;
    }
    const int bottom = ::openat(fd, "tief.prt.1", O_WRONLY | O_CREAT, 0644);
    ASSERT_GE(bottom, 0);
    ::close(bottom);
    ::close(fd);

    const QStringList found = search(u"tief.prt*"_s);
    QString expected;
    for (int level = 0; level < kLevels; ++level)
        expected += u"k/"_s;
    EXPECT_EQ(found, QStringList{expected + u"tief.prt.1"_s});
    EXPECT_EQ(m_stopQuestions, kLevels);
}

TEST_F(FindFileTest, UnreadableFolderYieldsNothingAndIsReported) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "root reads every folder";
    folders({u"closed"_s, u"open"_s});
    file(u"closed/secret.prt"_s);
    file(u"open/a.prt"_s);
    ASSERT_TRUE(QFile::setPermissions(path(u"closed"_s), QFileDevice::Permissions()));
    const QStringList found = search(u"*.prt"_s);
    QFile::setPermissions(path(u"closed"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(found, QStringList{u"open/a.prt"_s});
    EXPECT_EQ(m_finder.unreadableFolders(), QStringList{path(u"closed/"_s)});
}

TEST_F(FindFileTest, MissingFolderHasNoHits) {
    EXPECT_TRUE(search(u"*"_s, path(u"missing"_s)).isEmpty());
    EXPECT_TRUE(m_finder.unreadableFolders().isEmpty());
}

// The failures the members really meet, with the number kept and the reason at hand.
TEST(FindFileErrorTest, FailingMembersRaiseUnderTheirOwnName) {
    struct Case {
        const char* what;
        std::function<void(cFindFile&)> call;
        int number;
        QString source;
    };
    const QList<Case> cases = {
        {"mask above 32 bits", [](cFindFile& f) { f.setSFileFlag(2147483648LL); }, 6,
         u"cFindFile:sFileFlag Property Let"_s},
        {"mask below 32 bits", [](cFindFile& f) { f.setSFileFlag(-2147483649LL); }, 6,
         u"cFindFile:sFileFlag Property Let"_s},
        {"NUL in the path", [](cFindFile& f) { f.setSSearchpath(u"a"_s + QChar(0) + u"b"_s); }, 5,
         u"cFindFile:sSearchpath Property Let"_s},
        {"folder in the pattern", [](cFindFile& f) { f.setSFileToFind(u"sub/*.prt"_s); }, 5,
         u"cFindFile:sFileToFind Property Let"_s},
        {"no search path", [](cFindFile& f) { f.sStartSearch(); }, 5, u"cFindFile:sStartSearch Method"_s},
    };
    for (const Case& c : cases) {
        cFindFile finder;
        try {
            c.call(finder);
            ADD_FAILURE() << c.what << ": no error";
        } catch (const QuenforError& error) {
            EXPECT_EQ(error.number(), c.number) << c.what;
            EXPECT_EQ(error.source(), c.source) << c.what;
            EXPECT_FALSE(finder.lastFailure().isEmpty()) << c.what;
        }
    }
    // The extreme masks themselves are fine.
    cFindFile finder;
    finder.setSFileFlag(-2147483648LL);
    EXPECT_EQ(finder.sFileFlag(), std::numeric_limits<qint32>::min());
}

TEST_F(FindFileTest, ErrorsInsideTheSearchComeBackAsSearchErrors) {
    file(u"a.prt"_s);
    // A listener's own error keeps its number.
    m_finder.onMatchFound([](const QString&, const QString&, const QDateTime&, qint32, const QDateTime&,
                             const QDateTime&, const QString&) { throw QuenforError(53, u"owner"_s, u"weg"_s); });
    try {
        search(u"*"_s);
        FAIL() << "no error";
    } catch (const QuenforError& error) {
        EXPECT_EQ(error.number(), 53);
        EXPECT_EQ(error.source(), u"cFindFile:sStartSearch Method"_s);
        EXPECT_EQ(error.description(), u"Fehler bei sStartSearch"_s);
    }
    // A second search from inside an event is refused; the first goes on.
    int refused = 0;
    m_finder.onMatchFound([&](const QString&, const QString&, const QDateTime&, qint32, const QDateTime&,
                              const QDateTime&, const QString&) {
        try {
            m_finder.sStartSearch();
        } catch (const QuenforError& error) {
            refused += error.number() == 5;
        }
    });
    search(u"*"_s);
    EXPECT_EQ(refused, 1);
    // And afterwards the object searches again.
    m_finder.onMatchFound({});
    EXPECT_NO_THROW(search(u"*"_s));
}

TEST_F(FindFileTest, MoreSubfoldersThanTheListHoldsIsAnOverflow) {
    // 32768 folders: in memory where possible, as removing them from some disks takes half a minute.
    const QTemporaryDir memory(QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/findfile-XXXXXX"_s
                                                            : QDir::tempPath() + u"/findfile-XXXXXX"_s);
    ASSERT_TRUE(memory.isValid());
    const QString many = memory.path();
    m_finder.onMatchFound({});
    for (qsizetype i = 0; i <= cFindFile::maxSubfolders; ++i)
        ASSERT_EQ(::mkdir(QFile::encodeName(many + u"/d"_s + QString::number(i)).constData(), 0755), 0);
    try {
        search(u"*.prt"_s, many);
        FAIL() << "no overflow";
    } catch (const QuenforError& error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(error.source(), u"cFindFile:sStartSearch Method"_s);
        EXPECT_TRUE(m_finder.lastFailure().contains(u"32767"_s)) << m_finder.lastFailure().toStdString();
    }
    // One fewer is fine.
    ASSERT_EQ(::rmdir(QFile::encodeName(many + u"/d0"_s).constData()), 0);
    EXPECT_NO_THROW(search(u"*.prt"_s, many));
    EXPECT_EQ(m_stopQuestions, cFindFile::maxSubfolders);
}

} // namespace
