#include "common/fileexists.h"
#include "common/wholefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class FileSystemTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"folder.d"_s));
        writeFile(u"file.prt.3"_s, "x");
        ASSERT_TRUE(QFile::link(path(u"folder.d"_s), path(u"folderlink"_s)));
        ASSERT_TRUE(QFile::link(path(u"file.prt.3"_s), path(u"filelink"_s)));
        ASSERT_TRUE(QFile::link(path(u"gone"_s), path(u"brokenlink"_s)));
    }

    QString path(const QString& name) const { return m_dir.filePath(name); }

    void writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir m_dir;
};

TEST_F(FileSystemTest, ExistenceTestsTellFilesFromFolders) {
    struct Case {
        QString path;
        bool file;
        bool folder;
    };
    const Case cases[] = {
        {path(u"file.prt.3"_s), true, false},
        {path(u"folder.d"_s), false, true},
        {path(u"filelink"_s), true, false},
        {path(u"folderlink"_s), false, true},
        {path(u"brokenlink"_s), false, false},
        {path(u"missing"_s), false, false},
        {path(u"missing/deeper"_s), false, false},
        {QString(), false, false},
        {u"/"_s, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path.toStdString());
        EXPECT_EQ(fileExists(c.path), c.file);
        EXPECT_EQ(folderExists(c.path), c.folder);
        EXPECT_EQ(isFolder(c.path), c.folder);
    }
}

TEST_F(FileSystemTest, OnlyFoldersWhoseNamesCanBeReadCanBeListed) {
    EXPECT_TRUE(folderCanBeListed(path(u"folder.d"_s)));
    EXPECT_TRUE(folderCanBeListed(path(u"folderlink"_s)));
    EXPECT_FALSE(folderCanBeListed(path(u"file.prt.3"_s)));
    EXPECT_FALSE(folderCanBeListed(path(u"missing"_s)));
    EXPECT_FALSE(folderCanBeListed(QString()));
    if (geteuid() == 0)
        GTEST_SKIP() << "root lists every folder, so a locked folder cannot be tested";
    for (const QFile::Permissions locked :
         {QFile::Permissions(QFile::ReadOwner), QFile::Permissions(QFile::ExeOwner)}) {
        ASSERT_TRUE(QFile::setPermissions(path(u"folder.d"_s), locked));
        EXPECT_FALSE(folderCanBeListed(path(u"folder.d"_s))) << int(locked);
    }
    ASSERT_TRUE(QFile::setPermissions(path(u"folder.d"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(FileSystemTest, WholeFileKeepsEveryByte) {
    const QByteArray bytes("line\r\n\0second\rthird\n\xff", 20);
    writeFile(u"binary.bin"_s, bytes);
    EXPECT_EQ(readWholeFile(path(u"binary.bin"_s)), bytes);
}

TEST_F(FileSystemTest, WholeFileIsEmptyForWhatIsNoFile) {
    writeFile(u"empty.txt"_s, {});
    EXPECT_TRUE(readWholeFile(path(u"empty.txt"_s)).isEmpty());
    EXPECT_TRUE(readWholeFile(path(u"missing"_s)).isEmpty());
    EXPECT_TRUE(readWholeFile(path(u"folder.d"_s)).isEmpty());
    EXPECT_TRUE(readWholeFile(QString()).isEmpty());
}

} // namespace
