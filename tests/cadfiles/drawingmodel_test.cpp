#include "cadfiles/drawingmodel.h"

#include "../common/qstringprinting.h"
#include "cadfiles/drawingmodellist.h"
#include "drawingfixture.h"

#ifdef Q_OS_UNIX
#include "../common/unblockingfifo.h"
#endif

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;
using drawingfixture::drawingBytes;
using drawingfixture::writeFile;

namespace {

struct DrawingCase {
    const char* label;
    QString fileName;
    QByteArray field; // what the first line holds from character 725 on
    QString model;
    bool matches;
};

void PrintTo(const DrawingCase& c, std::ostream* os) {
    *os << c.label;
}

class DrawingFileTest : public ::testing::TestWithParam<DrawingCase> {
protected:
    QTemporaryDir dir;
};

TEST_P(DrawingFileTest, ReadsTheModelNameAtItsPosition) {
    const DrawingCase& c = GetParam();
    const QString path = writeFile(dir.path(), c.fileName, drawingBytes(c.field));
    ASSERT_FALSE(path.isEmpty());
    const DrawingCheck check = checkDrawing(path);
    EXPECT_EQ(check.read, DrawingRead::Read);
    EXPECT_EQ(check.modelName, c.model);
    EXPECT_EQ(check.matches, c.matches);
    EXPECT_EQ(check.path, path);
}

INSTANTIATE_TEST_SUITE_P(
    Drawings, DrawingFileTest,
    ::testing::Values(
        DrawingCase{"same name then space", u"bracket.drw.2"_s, "BRACKET ", u"BRACKET"_s, true},
        DrawingCase{"longer model name shows", u"bracket.drw.2"_s, "BRACKET2", u"BRACKET2"_s, false},
        DrawingCase{"lower-case model", u"BRACKET.DRW"_s, "bracket ", u"BRACKET"_s, true},
        DrawingCase{"lower-case drawing", u"bracket.drw"_s, "BRACKET ", u"BRACKET"_s, true},
        DrawingCase{"a dot after the name is kept", u"bracket.drw"_s, "BRACKET.PRT", u"BRACKET."_s, false},
        DrawingCase{"mixed case both", u"BrAcKeT.drw.7"_s, "bRaCkEt", u"BRACKET"_s, true},
        DrawingCase{"name up to the first dot", u"a.b.drw"_s, "A ", u"A"_s, true},
        DrawingCase{"first dot, longer model", u"a.b.drw"_s, "AB", u"AB"_s, false},
        DrawingCase{"filler before the name", u"bracket.drw"_s, "<BRACKET>", u"BRACKET"_s, true},
        DrawingCase{"two fillers cut the name", u"bracket.drw"_s, "@@BRACKET", u"BRACKE"_s, false},
        DrawingCase{"space inside is dropped", u"bracket.drw"_s, "BRA CKET", u"BRACKET"_s, true},
        DrawingCase{"every filler dropped", u"x.drw"_s, "!<", u""_s, false},
        DrawingCase{"other model", u"bracket.drw.1"_s, "HOUSING", u"HOUSING"_s, false},
        DrawingCase{"line ends after the name", u"bracket.drw"_s, "BRACKET\r\nBRACKET2", u"BRACKET"_s, true},
        DrawingCase{"digits and underscore count", u"part_01.drw"_s, "PART_01X", u"PART_01X"_s, false}));

TEST(DrawingModel, RuleOnTheFirstLine) {
    const QString line = QString::fromLatin1(drawingfixture::headerLine("BRACKET2", 740));
    // The slice is the name's length plus one; the full file name's length limits the walk.
    EXPECT_EQ(modelNameFromHeader(line, 7, 13), u"BRACKET2"_s);
    EXPECT_EQ(modelNameFromHeader(line, 7, 7), u"BRACKET"_s);
    EXPECT_EQ(modelNameFromHeader(line, 3, 13), u"BRAC"_s);
    EXPECT_EQ(modelNameFromHeader(line, 7, 0), u""_s);
    EXPECT_EQ(modelNameFromHeader(line.left(726), 7, 13), u"BR"_s);
    EXPECT_EQ(modelNameFromHeader(line.left(724), 7, 13), u""_s);
    EXPECT_EQ(modelNameFromHeader(u"?=>@ x"_s.rightJustified(730, u'#'), 5, 20), u"X"_s);
}

TEST(DrawingModel, DrawingNames) {
    const struct {
        QString path;
        QString name;
    } cases[] = {
        {u"bracket.drw.3"_s, u"BRACKET"_s}, {u"/work/a.b.drw"_s, u"A"_s}, {u"C:\\w\\Plate.DRW"_s, u"PLATE"_s},
        {u"/w/straße.drw"_s, u"STRAßE"_s},  {u"/w/.drw"_s, u""_s},        {u"/w/ohne_punkt"_s, u"OHNE_PUNKT"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawingNameOf(c.path), c.name) << c.path.toStdString();
}

TEST(DrawingModel, UpperCaseKeepsEveryCharacterInPlace) {
    EXPECT_EQ(upperCaseKeepingLength(u"straße äöü 1!"_s), u"STRAßE ÄÖÜ 1!"_s);
}

TEST(DrawingModel, NamesWithUmlautsDecodeWithTheCodepage) {
    QTemporaryDir dir;
    const QString path = writeFile(dir.path(), u"müller.drw"_s, drawingBytes("M\xDCLLER "));
    EXPECT_TRUE(checkDrawing(path).matches);
    EXPECT_EQ(checkDrawing(path).modelName, u"MÜLLER"_s);
    // Read as another single-byte code page the byte is another letter, so no match.
    EXPECT_FALSE(checkDrawing(path, u"windows-1251"_s).matches);
    // An unknown code page still reads, byte for character.
    EXPECT_EQ(checkDrawing(path, u"no-such-codepage"_s).modelName, u"MÜLLER"_s);
}

// Short and broken files never crash and give an empty model name, which is "NICHT".
TEST(DrawingModel, ShortAndBrokenFiles) {
    QTemporaryDir dir;
    QByteArray binary;
    for (int i = 0; i < 4096; ++i) {
        const char byte = char((i * 131 + 17) % 256);
        binary += byte == '\n' || byte == '\r' ? '\0' : byte;
    }
    // A header as drawings of current releases start: one short line of fields.
    const QByteArray currentRelease = "#UGC:2 DRAWING 1977 1560 803 1 1 15 3800 2022024 000002cf \\\n#- VERS 0 0\n";
    const struct {
        const char* label;
        QByteArray bytes;
        DrawingRead read;
        qsizetype headerLength;
    } cases[] = {
        {"empty", "", DrawingRead::ShortHeader, 0},
        {"three bytes", "abc", DrawingRead::ShortHeader, 3},
        {"current release header", currentRelease, DrawingRead::ShortHeader, 59},
        {"line of 724", drawingfixture::headerLine("", 724) + "\nBRACKET", DrawingRead::ShortHeader, 724},
        {"lone CR before 725", QByteArray(300, 'x') + '\r' + QByteArray(800, 'B'), DrawingRead::ShortHeader, 300},
        {"binary from the start", "\n" + binary, DrawingRead::ShortHeader, 0},
        {"binary without line end", binary, DrawingRead::Read, -1},
    };
    for (const auto& c : cases) {
        const QString path = writeFile(dir.path(), u"bracket.drw.1"_s, c.bytes);
        const DrawingCheck check = checkDrawing(path);
        EXPECT_EQ(check.read, c.read) << c.label;
        EXPECT_EQ(check.headerLength, c.headerLength) << c.label;
        EXPECT_FALSE(check.matches) << c.label;
        EXPECT_LE(check.modelName.size(), 8) << c.label;
        if (c.read != DrawingRead::Read) {
            EXPECT_TRUE(check.modelName.isEmpty()) << c.label;
        }
        EXPECT_EQ(drawingCheckStatusText(check), u"Achtung : Zeichnung enthält Modell NICHT gleichen Namens"_s);
    }
}

TEST(DrawingModel, MissingAndUnreadableFiles) {
    QTemporaryDir dir;
    const DrawingCheck missing = checkDrawing(dir.filePath(u"weg.drw"_s));
    EXPECT_EQ(missing.read, DrawingRead::Missing);
    EXPECT_EQ(missing.drawingName, u"WEG"_s);
    EXPECT_FALSE(missing.matches);
    EXPECT_EQ(checkDrawing(dir.path()).read, DrawingRead::Missing); // a folder is no drawing

    const QString path = writeFile(dir.path(), u"gesperrt.drw"_s, drawingBytes("GESPERRT"));
    QFile::setPermissions(path, QFileDevice::Permissions());
    QFile probe(path);
    if (probe.open(QIODevice::ReadOnly))
        GTEST_SKIP() << "running with rights that read every file";
    const DrawingCheck unreadable = checkDrawing(path);
    EXPECT_EQ(unreadable.read, DrawingRead::Unreadable);
    EXPECT_TRUE(unreadable.modelName.isEmpty());
    EXPECT_TRUE(drawingCheckNote(unreadable).contains(u"kann nicht gelesen werden"_s));
}

#ifdef Q_OS_UNIX
TEST(DrawingModel, APipeIsRefusedWithoutWaitingForAWriter) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"pipe.drw"_s);
    UnblockingFifo fifo(path);
    ASSERT_TRUE(fifo.isValid());
    for (const DrawingCheck& check : {checkDrawing(path), checkDrawingWithModelList(path, u"windows-1252"_s)}) {
        EXPECT_EQ(check.read, DrawingRead::NotAFile);
        EXPECT_FALSE(check.matches);
        EXPECT_TRUE(check.listedModels.isEmpty());
        EXPECT_TRUE(drawingCheckNote(check).contains(u"keine gewöhnliche Datei"_s))
            << drawingCheckNote(check).toStdString();
    }
}
#endif

TEST(DrawingModel, StatusTextsAndNotes) {
    DrawingCheck check;
    check.matches = true;
    EXPECT_EQ(drawingCheckStatusText(check), u"OK! Zeichnung enthält Modell gleichen Namens"_s);
    EXPECT_TRUE(drawingCheckNote(check).isEmpty());

    check.matches = false;
    check.read = DrawingRead::ShortHeader;
    check.headerLength = 59;
    EXPECT_EQ(drawingCheckStatusText(check), u"Achtung : Zeichnung enthält Modell NICHT gleichen Namens"_s);
    EXPECT_TRUE(drawingCheckNote(check).contains(u"nur 59 Zeichen"_s));
    EXPECT_TRUE(drawingCheckNote(check).contains(u"725"_s));

    check.read = DrawingRead::Missing;
    check.path = u"/w/x.drw"_s;
    EXPECT_TRUE(drawingCheckNote(check).contains(u"\"/w/x.drw\""_s));
}

} // namespace
