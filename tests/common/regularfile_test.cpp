#include "common/regularfile.h"
#include "common/wholefile.h"
#include "unblockingfifo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class RegularFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_dir.isValid());
        QFile file(path(u"teil.prt"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write("inhalt"), 6);
        file.close();
        ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"ordner"_s));
        ASSERT_TRUE(QFile::link(path(u"teil.prt"_s), path(u"verweis.prt"_s)));
    }

    QString path(const QString& name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

TEST_F(RegularFileTest, OpensRegularFilesAndLinksToThem) {
    for (const QString& name : {u"teil.prt"_s, u"verweis.prt"_s}) {
        QFile file;
        ASSERT_EQ(openRegularFile(file, path(name)), FileOpen::Opened) << name.toStdString();
        EXPECT_EQ(file.readAll(), QByteArray("inhalt"));
        EXPECT_TRUE(isRegularFile(path(name)));
    }
    FileOpen outcome = FileOpen::Missing;
    EXPECT_EQ(readWholeFile(path(u"teil.prt"_s), &outcome), QByteArray("inhalt"));
    EXPECT_EQ(outcome, FileOpen::Opened);
}

TEST_F(RegularFileTest, RefusesEverythingElseWithAGermanReason) {
    UnblockingFifo fifo(path(u"pipe.drw"_s));
    ASSERT_TRUE(fifo.isValid());
    ASSERT_TRUE(QFile::link(path(u"pipe.drw"_s), path(u"pipeverweis.drw"_s)));
    const struct {
        QString path;
        FileOpen expected;
        QString text;
    } cases[] = {
        {path(u"pipe.drw"_s), FileOpen::NotRegular, u"keine gewöhnliche Datei"_s},
        {path(u"pipeverweis.drw"_s), FileOpen::NotRegular, u"keine gewöhnliche Datei"_s},
        {u"/dev/null"_s, FileOpen::NotRegular, u"keine gewöhnliche Datei"_s},
        {path(u"ordner"_s), FileOpen::Folder, u"ist ein Verzeichnis"_s},
        {path(u"fehlt.prt"_s), FileOpen::Missing, u"gibt es nicht"_s},
        {path(u"teil.prt/unter"_s), FileOpen::Missing, u"gibt es nicht"_s},
        {QString(), FileOpen::Missing, u"gibt es nicht"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.toStdString());
        QFile file;
        EXPECT_EQ(openRegularFile(file, c.path), c.expected);
        EXPECT_FALSE(file.isOpen());
        EXPECT_EQ(regularFileStatus(c.path), c.expected);
        EXPECT_TRUE(fileOpenRefusalText(c.expected, c.path).contains(c.text));
        FileOpen outcome = FileOpen::Opened;
        EXPECT_TRUE(readWholeFile(c.path, &outcome).isEmpty());
        EXPECT_EQ(outcome, c.expected);
    }
    EXPECT_TRUE(fileOpenRefusalText(FileOpen::Opened, path(u"teil.prt"_s)).isEmpty());
}

} // namespace
