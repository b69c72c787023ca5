// The picture viewer's rules: picture types, the loader's checks and texts (with a stand-in
// decoder), the console's command table, the colour schemes and the commands that touch files.
#include "../common/qstringprinting.h"
#ifdef Q_OS_UNIX
#include "../common/unblockingfifo.h"
#endif
#include "common/pathsplit.h"
#include "desktools/pictureloader.h"
#include "desktools/picturetypes.h"
#include "desktools/viewerconsole.h"
#include "desktools/viewerfiles.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Records which reader the loader chose and answers as told.
class FakeDecoder : public PictureDecoder {
public:
    bool clipboardHasPicture = false;
    bool plainSucceeds = true;
    std::optional<ReadFailure> fullFailure;
    QStringList calls;

    bool takeClipboardPicture() override {
        calls.append(u"clipboard"_s);
        return clipboardHasPicture;
    }
    bool loadPlain(const QString& path) override {
        calls.append(u"plain "_s + path);
        return plainSucceeds;
    }
    std::optional<ReadFailure> readFull(const QString& path) override {
        calls.append(u"full "_s + path);
        return fullFailure;
    }
};

} // namespace

// --- picture types -------------------------------------------------------------------------

struct TypeCase {
    const char16_t* name;
    std::optional<PictureKind> kind;
};

class PictureTypeTest : public ::testing::TestWithParam<TypeCase> {};

TEST_P(PictureTypeTest, TypeComesFromTheLastFourOrFiveCharacters) {
    const TypeCase& c = GetParam();
    EXPECT_EQ(pictureKindOf(QString::fromUtf16(c.name)), c.kind) << QString::fromUtf16(c.name).toStdString();
    EXPECT_EQ(isPictureFileName(QString::fromUtf16(c.name)), c.kind.has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Names, PictureTypeTest,
    ::testing::Values(TypeCase{u"a.bmp", PictureKind::Bitmap}, TypeCase{u"SCAN.DIB", PictureKind::Bitmap},
                      TypeCase{u"x.WMF", PictureKind::PlainOnly}, TypeCase{u"x.TIFF", PictureKind::FullOnly},
                      TypeCase{u"Foto.JPEG", PictureKind::FullOnly}, TypeCase{u"/bilder/x.jpg", PictureKind::FullOnly},
                      TypeCase{u"xtiff", std::nullopt}, TypeCase{u"x.png.bak", std::nullopt},
                      TypeCase{u"x.txt", std::nullopt}, TypeCase{u"bmp", std::nullopt}));

TEST(PictureTypes, ReaderFormatsNameWhatTheTypePromises) {
    EXPECT_EQ(readerFormatOf(u"x.TIF"), QByteArray("tiff"));
    EXPECT_EQ(readerFormatOf(u"x.jfif"), QByteArray("jpeg"));
    EXPECT_EQ(readerFormatOf(u"x.dib"), QByteArray("bmp"));
    EXPECT_TRUE(readerFormatOf(u"x.txt").isEmpty());
}

// --- the loader's rules ------------------------------------------------------------------------

class PictureLoaderTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_dir.isValid()); }

    QString file(const QString& name, qsizetype size) {
        const QString path = m_dir.filePath(name);
        writeBytes(path, QByteArray(size, 'p'));
        return path;
    }

    QTemporaryDir m_dir;
    FakeDecoder m_decoder;
};

TEST_F(PictureLoaderTest, EmptyNameTakesTheClipboard) {
    EXPECT_EQ(loadPicture(u"   "_s, false, m_decoder), u"Die Zwischenablage enthält kein Bild."_s);
    m_decoder.clipboardHasPicture = true;
    EXPECT_EQ(loadPicture(QString(), false, m_decoder), QString());
    EXPECT_EQ(m_decoder.calls, (QStringList{u"clipboard"_s, u"clipboard"_s}));
}

TEST_F(PictureLoaderTest, MissingFilesAndFoldersAreNotAvailable) {
    EXPECT_EQ(loadPicture(m_dir.filePath(u"fehlt.png"_s), false, m_decoder), u"Datei nicht vorhanden/verfügbar"_s);
    ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"ordner.png"_s));
    EXPECT_EQ(loadPicture(m_dir.filePath(u"ordner.png"_s), false, m_decoder), u"Datei nicht vorhanden/verfügbar"_s);
    EXPECT_TRUE(m_decoder.calls.isEmpty());
}

#ifdef Q_OS_UNIX
TEST_F(PictureLoaderTest, APipeIsRefusedBeforeAnyReader) {
    const QString path = m_dir.filePath(u"pipe.png"_s);
    UnblockingFifo fifo(path);
    ASSERT_TRUE(fifo.isValid());
    EXPECT_TRUE(loadPicture(path, false, m_decoder).contains(u"keine gewöhnliche Datei"_s));
    EXPECT_TRUE(m_decoder.calls.isEmpty());
}
#endif

TEST_F(PictureLoaderTest, UnknownTypesAreRefusedBeforeDecoding) {
    EXPECT_EQ(loadPicture(file(u"bild.txt"_s, 100), false, m_decoder), u"Bildformat wird nicht unterstützt"_s);
    EXPECT_EQ(loadPicture(file(u"bildtiff"_s, 100), false, m_decoder), u"Bildformat wird nicht unterstützt"_s);
    EXPECT_TRUE(m_decoder.calls.isEmpty());
}

TEST_F(PictureLoaderTest, TheTypeAndTheFlagChooseTheReader) {
    const QString bmp = file(u"a.bmp"_s, 20);
    const QString ico = file(u"a.ico"_s, 20);
    const QString jpg = file(u"a.JPG"_s, 20);
    loadPicture(bmp, false, m_decoder);
    loadPicture(bmp, true, m_decoder);
    loadPicture(ico, true, m_decoder);
    loadPicture(jpg, false, m_decoder);
    EXPECT_EQ(m_decoder.calls, (QStringList{u"plain "_s + bmp, u"full "_s + bmp, u"plain "_s + ico, u"full "_s + jpg}));
}

TEST_F(PictureLoaderTest, ReaderFailuresBecomeTheirTexts) {
    m_decoder.plainSucceeds = false;
    EXPECT_EQ(loadPicture(file(u"a.wmf"_s, 20), false, m_decoder), u"Laden des Bildes scheitert (Loadpicture)"_s);
    m_decoder.fullFailure = ReadFailure{ReadStep::Bitmap, ReadError::UnsupportedFormat};
    EXPECT_EQ(loadPicture(file(u"a.png"_s, 20), false, m_decoder),
              u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nunbekanntes Bildformat"_s);
}

struct FailureCase {
    ReadStep step;
    ReadError error;
    const char16_t* text;
};

class ReadFailureTextTest : public ::testing::TestWithParam<FailureCase> {};

TEST_P(ReadFailureTextTest, StepTextAndStatusText) {
    EXPECT_EQ(readFailureText({GetParam().step, GetParam().error}), QString::fromUtf16(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Steps, ReadFailureTextTest,
    ::testing::Values(
        FailureCase{ReadStep::Startup, ReadError::ReaderMissing,
                    u"Keine GDIPlus-Verbindung (GDIPLUS.dll eventuell nicht vorhanden)\r\nInitialisierung scheitert"},
        FailureCase{ReadStep::Bitmap, ReadError::FileNotFound,
                    u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nDatei nicht gefunden"},
        FailureCase{ReadStep::Bitmap, ReadError::AccessDenied,
                    u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nZugriff verweigert"},
        FailureCase{ReadStep::Bitmap, ReadError::Unknown,
                    u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\nfehlerhafte Initialisierung"},
        FailureCase{ReadStep::Handle, ReadError::InvalidData,
                    u"Bitmap-Handle kann nicht erzeugt werden\r\nUngeeigneter Parameter"},
        FailureCase{ReadStep::Picture, ReadError::OutOfMemory,
                    u"Bitmap kann nicht aus Handle erstellt werden\r\nSpeichermangel"}));

TEST(GdiplusStatusText, CodesWithoutATextGiveNothing) {
    for (const int code : {-1, 0, 6, 14, 15, 16, 21})
        EXPECT_TRUE(gdiplusStatusText(code).isEmpty()) << code;
}

// --- the console's command table ---------------------------------------------------------------

struct ConsoleCase {
    const char16_t* input;
    QList<ConsoleStep> steps;
};

class ConsoleTableTest : public ::testing::TestWithParam<ConsoleCase> {};

TEST_P(ConsoleTableTest, ExactCaseSensitiveMatches) {
    const QList<ConsoleStep> steps =
        consoleSteps(QString::fromUtf16(GetParam().input), [](const QString&) { return false; });
    EXPECT_EQ(steps, GetParam().steps) << QString::fromUtf16(GetParam().input).toStdString();
}

ConsoleStep colourStep(const QString& word) {
    return {ConsoleAction::Colour, word};
}

INSTANTIATE_TEST_SUITE_P(Commands, ConsoleTableTest,
                         ::testing::Values(ConsoleCase{u"save", {{ConsoleAction::Save, {}}}},
                                           ConsoleCase{u"x", {{ConsoleAction::Exit, {}}}},
                                           ConsoleCase{u"EXIT", {{ConsoleAction::Exit, {}}}}, ConsoleCase{u"Exit", {}},
                                           ConsoleCase{u"QUIT", {{ConsoleAction::Quit, {}}}},
                                           ConsoleCase{u"black", {colourStep(u"schwarz"_s)}}, ConsoleCase{u"Black", {}},
                                           ConsoleCase{u"schwarz", {colourStep(u"schwarz"_s)}},
                                           ConsoleCase{u"grün", {colourStep(u"gruen"_s)}},
                                           ConsoleCase{u"green", {colourStep(u"gruen"_s)}}, ConsoleCase{u"gruen", {}},
                                           ConsoleCase{u"?", {{ConsoleAction::Help, {}}}}, ConsoleCase{u"HELP", {}},
                                           ConsoleCase{u"version", {{ConsoleAction::Version, {}}}},
                                           ConsoleCase{u" save", {}}, ConsoleCase{u"", {}}));

TEST(ConsoleTable, AnExistingFileIsLoadedAfterSaveAndBeforeTheCommands) {
    QStringList asked;
    const auto exists = [&asked](const QString& text) {
        asked.append(text);
        return true;
    };
    EXPECT_EQ(consoleSteps(u"save"_s, exists),
              (QList<ConsoleStep>{{ConsoleAction::Save, {}}, {ConsoleAction::OpenFile, {}}}));
    EXPECT_EQ(consoleSteps(u"dos"_s, exists),
              (QList<ConsoleStep>{{ConsoleAction::OpenFile, {}}, {ConsoleAction::Terminal, {}}}));
    EXPECT_EQ(consoleSteps(u"/bilder/a.png"_s, exists), (QList<ConsoleStep>{{ConsoleAction::OpenFile, {}}}));
    EXPECT_EQ(asked, (QStringList{u"save"_s, u"dos"_s, u"/bilder/a.png"_s}));
}

// --- commands that touch files -------------------------------------------------------------------

class ViewerFilesTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_dir.isValid()); }
    QString path(const QString& name) const { return QDir::toNativeSeparators(m_dir.filePath(name)); }
    QString folder() const { return QDir::toNativeSeparators(m_dir.path()); }

    QTemporaryDir m_dir;
};

TEST_F(ViewerFilesTest, FileListShowsPicturesOnlySortedWithoutRegardToCase) {
    for (const QString& name : {u"b.PNG"_s, u"A.jpg"_s, u"c.txt"_s, u".hidden.png"_s, u"scan.tiff"_s})
        writeBytes(path(name), "x");
    ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"ordner.bmp"_s));
    EXPECT_EQ(pictureFilesIn(folder()), (QStringList{u"A.jpg"_s, u"b.PNG"_s, u"scan.tiff"_s}));
    EXPECT_TRUE(pictureFilesIn(path(u"fehlt"_s)).isEmpty());
}

TEST_F(ViewerFilesTest, SaveWritesTheBitmapAsIsAndReplacesTheOldOne) {
    writeBytes(path(u"Zwischenablage.bmp"_s), "alt");
    const QByteArray bitmap("BM\x00\x01\x02 bitmap bytes", 19);
    const ViewerFileResult saved = savePictureInFolder(folder(), bitmap);
    EXPECT_TRUE(saved.ok);
    EXPECT_EQ(saved.path, path(u"Zwischenablage.bmp"_s));
    EXPECT_EQ(saved.text, u"Bild als "_s + saved.path + u" gespeichert"_s);
    EXPECT_EQ(readBytes(saved.path), bitmap);
}

TEST_F(ViewerFilesTest, AFolderEndingInASeparatorGetsNoSecondOne) {
    // A drive root ("C:\", "/") ends in its separator; the name follows it directly.
    const QString root = folder() + QDir::separator();
    EXPECT_EQ(savePictureInFolder(root, "BM").path, root + u"Zwischenablage.bmp"_s);
    EXPECT_EQ(writeFileList(root, {}, u"windows-1252"_s).path, root + u"Liste.txt"_s);
    EXPECT_EQ(joinFolderAndName(u"/", u"Zwischenablage.bmp"), u"/Zwischenablage.bmp"_s);
    EXPECT_EQ(joinFolderAndName(u"C:\\", u"Zwischenablage.bmp"), u"C:\\Zwischenablage.bmp"_s);
}

TEST_F(ViewerFilesTest, SaveFailureKeepsWhatStandsThereAndSaysWhy) {
    ASSERT_TRUE(QDir(m_dir.path()).mkdir(u"Zwischenablage.bmp"_s));
    const ViewerFileResult saved = savePictureInFolder(folder(), "BM");
    EXPECT_FALSE(saved.ok);
    EXPECT_TRUE(saved.text.contains(u"Verzeichnis"_s)) << saved.text.toStdString();
    const ViewerFileResult missing = savePictureInFolder(path(u"fehlt"_s), "BM");
    EXPECT_FALSE(missing.ok);
    EXPECT_TRUE(missing.text.contains(u"existiert nicht"_s)) << missing.text.toStdString();
}

TEST_F(ViewerFilesTest, ListWritesOneNameALineInTheCodePage) {
    const ViewerFileResult written = writeFileList(folder(), {u"Bär.png"_s, u"b.jpg"_s}, u"windows-1252"_s);
    EXPECT_TRUE(written.ok);
    EXPECT_EQ(written.text, u"Dateiliste wurde in "_s + path(u"Liste.txt"_s) + u" geschrieben"_s);
    EXPECT_EQ(readBytes(written.path), QByteArray("B\xE4r.png\r\nb.jpg\r\n"));
    // A name the code page cannot hold makes the whole list UTF-8 rather than a "?".
    writeFileList(folder(), {u"Δ.png"_s, u"Bär.png"_s}, u"windows-1252"_s);
    EXPECT_EQ(readBytes(written.path), QString(u"Δ.png\r\nBär.png\r\n"_s).toUtf8());
}

TEST_F(ViewerFilesTest, DeleteRemovesOnlyTheChosenFile) {
    writeBytes(path(u"a.png"_s), "x");
    writeBytes(path(u"b.png"_s), "x");
    const ViewerFileResult deleted = deleteFileInFolder(folder(), u"a.png"_s);
    EXPECT_TRUE(deleted.ok);
    EXPECT_EQ(deleted.text, u"Datei gelöscht"_s);
    EXPECT_FALSE(QFile::exists(path(u"a.png"_s)));
    EXPECT_TRUE(QFile::exists(path(u"b.png"_s)));

    EXPECT_EQ(deleteFileInFolder(folder(), u"a.png"_s).text, u"Datei nicht vorhanden/verfügbar"_s);
    const ViewerFileResult none = deleteFileInFolder(folder(), QString());
    EXPECT_FALSE(none.ok);
    EXPECT_EQ(none.text, u"Keine Datei ausgewählt."_s);
}

TEST_F(ViewerFilesTest, DateOfTheChosenFile) {
    writeBytes(path(u"a.png"_s), "x");
    EXPECT_TRUE(QRegularExpression(u"^\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d$"_s)
                    .match(fileDateText(folder(), u"a.png"_s))
                    .hasMatch());
    EXPECT_EQ(fileDateText(folder(), QString()), u"Keine Datei ausgewählt."_s);
}
