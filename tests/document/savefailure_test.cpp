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

TEST_F(SaveFailureTest, SaveKeepsThePermissionBits) {
    const QByteArray file = QFile::encodeName(target());
    ASSERT_EQ(chmod(file.constData(), 0640), 0);
    const WriteResult result = writeDocumentFile(target(), {u"neu"_s}, cp1252);
    ASSERT_TRUE(result.ok) << result.error.toStdString();
    EXPECT_EQ(readBytes(target()), QByteArray("neu\r\n"));
    struct stat info {};
    ASSERT_EQ(stat(file.constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, mode_t(0640));
}

} // namespace
} // namespace quenfor
