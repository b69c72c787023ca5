#include "cadfiles/drawingfoldercheck.h"

#include "../common/qstringprinting.h"
#include "drawingfixture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;
using drawingfixture::drawingBytes;
using drawingfixture::writeFile;

namespace {

class DrawingFolderTest : public ::testing::Test {
protected:
    QTemporaryDir dir;

    void SetUp() override {
        const struct {
            QString name;
            QByteArray field;
        } files[] = {
            {u"bracket.drw.2"_s, "BRACKET "},
            {u"Bracket.drw.3"_s, "BRACKET2"},
            {u"PLATE.DRW"_s, "plate "},
            {u"a.b.drw"_s, "A "},
            {u"neu.drw.1"_s, ""},
            {u"bracket.prt.1"_s, "BRACKET"},
            {u"notes.txt"_s, "NOTES"},
            {u"cover.drwx"_s, "COVER "},
        };
        for (const auto& f : files)
            ASSERT_FALSE(writeFile(dir.path(), f.name, drawingBytes(f.field)).isEmpty());
        writeFile(dir.path(), u"kurz.drw"_s, "abc");
        ASSERT_TRUE(QDir(dir.path()).mkdir(u"ordner.drw"_s));
    }
};

TEST_F(DrawingFolderTest, ListsDrawingsByNameInAnyCase) {
    EXPECT_EQ(drawingFilesIn(dir.path()),
              (QStringList{u"a.b.drw"_s, u"bracket.drw.2"_s, u"Bracket.drw.3"_s, u"cover.drwx"_s, u"kurz.drw"_s,
                           u"neu.drw.1"_s, u"PLATE.DRW"_s}));
    EXPECT_TRUE(drawingFilesIn(dir.filePath(u"fehlt"_s)).isEmpty());
    EXPECT_TRUE(drawingFilesIn(QString()).isEmpty());
}

TEST_F(DrawingFolderTest, ListsTheDrawingsWhoseModelDiffers) {
    QList<std::pair<qsizetype, qsizetype>> steps;
    const DrawingFolderCheck result =
        checkDrawingFolder(dir.path(), u"windows-1252"_s, [&](qsizetype done, qsizetype total) {
            steps.append({done, total});
        });
    EXPECT_TRUE(result.error.isEmpty());
    EXPECT_FALSE(result.cancelled);
    EXPECT_EQ(result.listed, 7);
    EXPECT_EQ(result.done, 7);
    EXPECT_EQ(result.checks.size(), 7);
    EXPECT_EQ(result.differing, (QStringList{u"BRACKET"_s, u"KURZ"_s, u"NEU"_s}));
    EXPECT_EQ(result.checks.at(1).modelName, u"BRACKET"_s);
    EXPECT_EQ(result.checks.at(2).modelName, u"BRACKET2"_s);
    ASSERT_EQ(steps.size(), 7);
    EXPECT_EQ(steps.front(), std::make_pair(qsizetype(1), qsizetype(7)));
    EXPECT_EQ(steps.back(), std::make_pair(qsizetype(7), qsizetype(7)));
}

TEST_F(DrawingFolderTest, SkipsDrawingsThatVanished) {
    const QStringList listed = drawingFilesIn(dir.path());
    ASSERT_TRUE(QFile::remove(dir.filePath(u"neu.drw.1"_s)));
    const DrawingFolderCheck result = checkDrawings(dir.path(), listed, u"windows-1252"_s);
    EXPECT_EQ(result.listed, 7);
    EXPECT_EQ(result.done, 7);
    EXPECT_EQ(result.checks.size(), 6);
    EXPECT_EQ(result.differing, (QStringList{u"BRACKET"_s, u"KURZ"_s}));
}

TEST_F(DrawingFolderTest, StopsWhenCancelled) {
    std::atomic_bool cancel = false;
    const DrawingFolderCheck result = checkDrawingFolder(
        dir.path(), u"windows-1252"_s, [&](qsizetype done, qsizetype) { cancel = done == 3; }, &cancel);
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.done, 3);
    EXPECT_EQ(result.checks.size(), 3);
    EXPECT_EQ(result.differing, (QStringList{u"BRACKET"_s}));
    EXPECT_EQ(checkCancelledText(result.done, result.listed), u"Abgebrochen: 3 von 7 Zeichnungen geprüft."_s);
}

TEST_F(DrawingFolderTest, MissingFolderIsReported) {
    const DrawingFolderCheck result = checkDrawingFolder(dir.filePath(u"fehlt"_s), u"windows-1252"_s);
    EXPECT_TRUE(result.error.startsWith(u"Das Verzeichnis \""_s)) << result.error.toStdString();
    EXPECT_TRUE(result.checks.isEmpty());
}

TEST(DrawingFolderTexts, FirstFileStartingWith) {
    const QStringList files{u"a.b.drw"_s, u"bracket.drw.2"_s, u"Bracket2.drw"_s, u"PLATE.DRW"_s};
    const struct {
        QString entry;
        qsizetype index;
    } cases[] = {
        {u"BRACKET"_s, 1}, {u"bracket2"_s, 2}, {u"PLATE"_s, 3}, {u"A"_s, 0}, {u"HOUSING"_s, -1}, {u""_s, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(firstFileStartingWith(files, c.entry), c.index) << c.entry.toStdString();
    EXPECT_EQ(firstFileStartingWith({}, u"A"_s), -1);
}

} // namespace
