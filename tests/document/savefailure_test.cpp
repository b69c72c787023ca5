#include "testsupport.h"

#include "document/documentfile.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using test::readBytes;
using test::writeBytes;

const TextEncoding cp1252 = TextEncoding::codepageNamed(u"windows-1252"_s);
const QByteArray oldBytes = "! alte Datei\r\ndisplay shade\r\nmapkey \xe4 @MAPKEY_NAMEalt;\r\n";
constexpr int kCannotDropRights = 77;

// Runs a save in a child process, so that limits and lost rights never touch the test runner,
// and hands back its error text. A child that is root gives up its rights first, if it is to.
QString saveInChild(const std::function<WriteResult()>& save, rlim_t sizeLimit, bool dropRoot, int* exitCode) {
    int fds[2];
    if (pipe(fds) != 0)
        return u"<pipe failed>"_s;
    const pid_t pid = fork();
    if (pid == 0) {
        close(fds[0]);
        if (dropRoot && geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(kCannotDropRights);
        if (sizeLimit > 0) {
            signal(SIGXFSZ, SIG_IGN);
            rlimit limit{};
            getrlimit(RLIMIT_FSIZE, &limit);
            limit.rlim_cur = sizeLimit;
            setrlimit(RLIMIT_FSIZE, &limit);
        }
        const WriteResult result = save();
        const QByteArray error = result.error.toUtf8();
        const bool sent = write(fds[1], error.constData(), size_t(error.size())) == error.size();
        _exit(result.ok ? 1 : sent ? 0 : 2);
    }
    close(fds[1]);
    QByteArray error;
    char buffer[512];
    for (ssize_t n; (n = read(fds[0], buffer, sizeof buffer)) > 0;)
        error.append(buffer, n);
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    *exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return QString::fromUtf8(error);
}

class SaveFailureTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"cad"_s));
        ASSERT_TRUE(writeBytes(target(), oldBytes));
    }
    QString folder() const { return m_dir.path() + u"/cad"_s; }
    QString target() const { return folder() + u"/config.pro"_s; }

    // A failed save names the file, says why in German and that nothing was lost; the old file and
    // the folder are exactly as before, with no temporary file left behind.
    void expectOldFileKept(const QString& error, const QString& reason) const {
        EXPECT_TRUE(error.startsWith(u"Die Datei "_s)) << error.toStdString();
        EXPECT_TRUE(error.contains(reason)) << error.toStdString();
        EXPECT_TRUE(error.endsWith(u"Die bisherige Datei bleibt unverändert."_s)) << error.toStdString();
        EXPECT_EQ(readBytes(target()), oldBytes);
        EXPECT_EQ(QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList{u"config.pro"_s});
    }

    QTemporaryDir m_dir;
};

TEST_F(SaveFailureTest, FolderInTheWayMissingFolderOrUnknownCodePage) {
    ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"in_the_way.pro"_s));
    const struct {
        QString path;
        TextEncoding encoding;
        QString reason;
    } cases[] = {
        {m_dir.path() + u"/in_the_way.pro"_s, cp1252, u"An ihrer Stelle steht ein Verzeichnis."_s},
        {m_dir.path() + u"/fehlt/config.pro"_s, cp1252, u"fehlt existiert nicht."_s},
        {target(), TextEncoding::codepageNamed(u"x-keine-codepage"_s),
         u"Die Codepage \"x-keine-codepage\" ist unbekannt."_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reason.toStdString());
        const WriteResult result = writeDocumentFile(c.path, {u"neu"_s}, c.encoding);
        EXPECT_FALSE(result.ok);
        expectOldFileKept(result.error, c.reason);
    }
}

TEST_F(SaveFailureTest, SizeLimitOrMissingRightsKeepTheOldFile) {
    QStringList bigDocument;
    for (int i = 0; i < 20000; ++i)
        bigDocument.append(u"option_%1 C:\\Programme\\cad\\ordner_%1"_s.arg(i));
    // Root may write anywhere: the child then works as user 65534, who owns the folder and file.
    const uid_t user = geteuid() == 0 ? 65534 : geteuid();
    const QByteArray cad = QFile::encodeName(folder());
    const QByteArray file = QFile::encodeName(target());
    ASSERT_EQ(chmod(QFile::encodeName(m_dir.path()).constData(), 0755), 0);
    ASSERT_EQ(chown(cad.constData(), user, gid_t(-1)), 0);
    ASSERT_EQ(chown(file.constData(), user, gid_t(-1)), 0);

    const struct {
        const char* what;
        rlim_t sizeLimit;
        mode_t folderMode;
        mode_t fileMode;
        QString reason;
    } cases[] = {
        {"file size limit", 64 * 1024, 0755, 0644, u"Die zulässige Dateigröße ist überschritten."_s},
        {"read-only file", 0, 0755, 0444, u"Es fehlen die Schreibrechte."_s},
        {"read-only folder", 0, 0555, 0644, u"Es fehlen die Schreibrechte."_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_EQ(chmod(cad.constData(), c.folderMode), 0);
        ASSERT_EQ(chmod(file.constData(), c.fileMode), 0);
        int exitCode = -1;
        const QString error = saveInChild([&] { return writeDocumentFile(target(), bigDocument, cp1252); }, c.sizeLimit,
                                          c.sizeLimit == 0, &exitCode);
        ASSERT_EQ(chmod(cad.constData(), 0755), 0);
        if (exitCode == kCannotDropRights)
            GTEST_SKIP() << "running as root and cannot switch to user 65534 to lose the write rights";
        ASSERT_EQ(exitCode, 0) << "the save did not fail as it should (1) or could not report (2)";
        expectOldFileKept(error, c.reason);
    }
}

// The last bytes of a save live in a buffer until the end: a limit that hits anywhere, the very
// last byte included, must fail the save and keep the old file, never commit a cut one.
TEST_F(SaveFailureTest, SizeLimitAtAnyByteFailsTheSaveOrWritesItAll) {
    for (const int lines : {1, 7, 300, 1500, 90000}) {
        QStringList document;
        for (int i = 0; i < lines; ++i)
            document.append(u"opt_%1 wert_%1"_s.arg(i));
        QByteArray expected;
        for (const QString& line : document)
            expected += line.toLatin1() + "\r\n";
        const rlim_t size = rlim_t(expected.size());
        std::vector<rlim_t> limits;
        if (size <= 200) {
            for (rlim_t limit = 1; limit <= size + 2; ++limit)
                limits.push_back(limit);
        } else {
            const qint64 n = qint64(size);
            for (const qint64 limit : {qint64(1), qint64(2), qint64(1023), qint64(1024), qint64(16383), qint64(16384),
                                       qint64(16385), n / 2, n - 16385, n - 16384, n - 2, n - 1, n, n + 1}) {
                if (limit >= 1)
                    limits.push_back(rlim_t(limit));
            }
        }
        for (const rlim_t limit : limits) {
            SCOPED_TRACE((QByteArray::number(expected.size()) + " bytes, limit " + QByteArray::number(qint64(limit)))
                             .toStdString());
            ASSERT_TRUE(writeBytes(target(), oldBytes));
            int exitCode = -1;
            const QString error =
                saveInChild([&] { return writeDocumentFile(target(), document, cp1252); }, limit, false, &exitCode);
            if (limit >= size) {
                ASSERT_EQ(exitCode, 1) << error.toStdString();
                EXPECT_EQ(readBytes(target()), expected);
            } else {
                ASSERT_EQ(exitCode, 0) << "a cut save was reported as done";
                expectOldFileKept(error, u"Die zulässige Dateigröße ist überschritten."_s);
            }
        }
    }
}

// A FIFO, device or socket under the name is not a file to replace: a save onto it must leave it
// what it is, also when a link leads there.
TEST_F(SaveFailureTest, OnlyRegularFilesAreReplaced) {
    const QString fifo = m_dir.path() + u"/pipe.pro"_s;
    ASSERT_EQ(mkfifo(QFile::encodeName(fifo).constData(), 0644), 0);
    const QString link = m_dir.path() + u"/link.pro"_s;
    ASSERT_TRUE(QFile::link(fifo, link));
    for (const QString& path : {fifo, link}) {
        SCOPED_TRACE(path.toStdString());
        const WriteResult result = writeDocumentFile(path, {u"neu"_s}, cp1252);
        EXPECT_FALSE(result.ok);
        EXPECT_TRUE(result.error.contains(u"keine gewöhnliche Datei"_s)) << result.error.toStdString();
        struct stat info {};
        ASSERT_EQ(lstat(QFile::encodeName(fifo).constData(), &info), 0);
        EXPECT_TRUE(S_ISFIFO(info.st_mode));
    }
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
              (QStringList{u"cad"_s, u"link.pro"_s, u"pipe.pro"_s}));
}

// A link that someone else planted in a folder everybody may write to (/tmp) is not followed, as
// the kernel would not follow it either; our own link elsewhere is, and stays a link.
TEST_F(SaveFailureTest, LinksAreFollowedOnlyWhereTheKernelWouldFollowThem) {
    const QString own = m_dir.path() + u"/own-link.pro"_s;
    ASSERT_TRUE(QFile::link(target(), own));
    const WriteResult followed = writeDocumentFile(own, {u"neu"_s}, cp1252);
    ASSERT_TRUE(followed.ok) << followed.error.toStdString();
    EXPECT_TRUE(QFileInfo(own).isSymLink());
    EXPECT_EQ(readBytes(target()), QByteArray("neu\r\n"));

    if (geteuid() != 0)
        GTEST_SKIP() << "a link owned by another user can only be made as root";
    const QString shared = m_dir.path() + u"/shared"_s;
    const QByteArray sharedName = QFile::encodeName(shared);
    ASSERT_EQ(mkdir(sharedName.constData(), 0777), 0);
    ASSERT_EQ(chmod(sharedName.constData(), 01777), 0);
    const QString planted = shared + u"/config.pro"_s;
    ASSERT_TRUE(QFile::link(target(), planted));
    ASSERT_EQ(lchown(QFile::encodeName(planted).constData(), 65534, 65534), 0);

    const WriteResult refused = writeDocumentFile(planted, {u"fremd"_s}, cp1252);
    EXPECT_FALSE(refused.ok);
    EXPECT_TRUE(refused.error.contains(u"symbolische Verknüpfung"_s)) << refused.error.toStdString();
    EXPECT_EQ(readBytes(target()), QByteArray("neu\r\n"));
}

// A save changes the content only: owner, group, mode, extended attributes and every hard link of
// the file stay as they were.
TEST_F(SaveFailureTest, OwnerModeAttributesAndHardLinksStay) {
    const QByteArray file = QFile::encodeName(target());
    const QByteArray second = QFile::encodeName(m_dir.path() + u"/zweiter-name.pro"_s);
    ASSERT_EQ(link(file.constData(), second.constData()), 0);
    ASSERT_EQ(chmod(file.constData(), 0640), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(file.constData(), 65534, 65534), 0);
    }
    const bool attributes = setxattr(file.constData(), "user.quenfor", "42", 2, 0) == 0;
    struct stat before {};
    ASSERT_EQ(stat(file.constData(), &before), 0);

    const WriteResult result = writeDocumentFile(target(), {u"neu"_s}, cp1252);
    ASSERT_TRUE(result.ok) << result.error.toStdString();

    struct stat after {};
    ASSERT_EQ(stat(file.constData(), &after), 0);
    EXPECT_EQ(readBytes(target()), QByteArray("neu\r\n"));
    EXPECT_EQ(readBytes(QFile::decodeName(second)), QByteArray("neu\r\n"));
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_nlink, nlink_t(2));
    EXPECT_EQ(after.st_mode & 07777, mode_t(0640));
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    if (attributes) {
        char value[8] = {};
        EXPECT_EQ(getxattr(file.constData(), "user.quenfor", value, sizeof value), 2);
        EXPECT_STREQ(value, "42");
    }
    EXPECT_EQ(QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"config.pro"_s});

    // A file with one name is replaced whole, and its owner and attributes go along.
    ASSERT_EQ(unlink(second.constData()), 0);
    const WriteResult again = writeDocumentFile(target(), {u"noch neuer"_s}, cp1252);
    ASSERT_TRUE(again.ok) << again.error.toStdString();
    ASSERT_EQ(stat(file.constData(), &after), 0);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_mode & 07777, mode_t(0640));
    if (attributes) {
        EXPECT_EQ(getxattr(file.constData(), "user.quenfor", nullptr, 0), 2);
    }
}

// Another program changed or replaced the file after it was read: the save must not throw that
// change away.
TEST_F(SaveFailureTest, FileChangedSinceReadingIsNotOverwritten) {
    const QByteArray theirs = "! vom anderen Programm\r\n";
    for (const bool replaced : {false, true}) {
        SCOPED_TRACE(replaced ? "replaced by another file" : "written in place");
        ASSERT_TRUE(writeBytes(target(), oldBytes));
        const ReadResult read = readDocumentFile(target(), {});
        ASSERT_TRUE(read.ok && read.stamp);
        if (replaced) {
            const QString other = m_dir.path() + u"/andere.pro"_s;
            ASSERT_TRUE(writeBytes(other, theirs));
            ASSERT_EQ(rename(QFile::encodeName(other).constData(), QFile::encodeName(target()).constData()), 0);
        } else {
            QFile file(target());
            ASSERT_TRUE(file.open(QIODevice::Append));
            file.write(theirs);
        }
        const QByteArray onDisk = readBytes(target());

        const WriteResult refused = writeDocumentFile(target(), {u"meins"_s}, cp1252, read.stamp);
        EXPECT_FALSE(refused.ok);
        EXPECT_TRUE(refused.changedOnDisk);
        EXPECT_TRUE(refused.error.contains(u"anderen Programm geändert"_s)) << refused.error.toStdString();
        EXPECT_EQ(readBytes(target()), onDisk);

        const WriteResult unchecked = writeDocumentFile(target(), {u"meins"_s}, cp1252);
        EXPECT_TRUE(unchecked.ok);
        EXPECT_EQ(readBytes(target()), QByteArray("meins\r\n"));
    }
}

} // namespace
} // namespace quenfor
