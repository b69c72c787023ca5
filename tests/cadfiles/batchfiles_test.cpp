// The file list decides which objects get a mapkey; writing doit.pro must never leave a half
// file or a file with "?" for a name the CAD system would then look for.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "cadfiles/batchfilelist.h"
#include "cadfiles/doitfile.h"
#include "cadfiles/tastomatsettings.h"
#include "settings/settingsstore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

void touch(const QString& path, const QByteArray& bytes = "x") {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(ObjectFileName, DropsOnlyTheVersionOfATypedName) {
    const struct {
        QString name;
        QString expected;
    } cases[] = {
        {u"bracket.prt.3"_s, u"bracket.prt"_s},     {u"bracket.prt.10"_s, u"bracket.prt"_s},
        {u"bracket.prt"_s, u"bracket.prt"_s},       {u"notes.1"_s, u"notes.1"_s},
        {u"a.b.c.prt.2"_s, u"a.b.c.prt"_s},         {u"bracket.prt."_s, u"bracket.prt."_s},
        {u"bracket.prt.3a"_s, u"bracket.prt.3a"_s}, {u".prt.1"_s, u".prt"_s},
        {u"x.prt.\u0663"_s, u"x.prt.\u0663"_s}, // only ASCII digits make a version
    };
    for (const auto& c : cases)
        EXPECT_EQ(objectFileName(c.name), c.expected) << c.name.toStdString();
}

TEST(BatchFileList, ListsEachMatchingObjectOnceWithoutVersions) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    for (const QString& name : {u"bracket.prt.1"_s, u"bracket.prt.2"_s, u"WELLE.PRT.7"_s, u"motor.asm"_s,
                                u"Zeichnung ä.drw.1"_s, u"notiz.txt"_s, u".versteckt.prt"_s, u"trail.txt.1"_s})
        touch(dir.filePath(name));
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"ordner.prt"_s));

    const BatchFileList list = listBatchFiles(dir.path(), u"*.prt;*.asm; *.drw ;;"_s);
    EXPECT_TRUE(list.error.isEmpty());
    EXPECT_EQ(list.names, (QStringList{u"bracket.prt"_s, u"motor.asm"_s, u"WELLE.PRT"_s, u"Zeichnung ä.drw"_s}));

    EXPECT_EQ(listBatchFiles(dir.path(), u"brack*"_s).names, QStringList{u"bracket.prt"_s});
    EXPECT_EQ(listBatchFiles(dir.path(), u"  ;  "_s).names.size(), 6); // no pattern: every file
    EXPECT_TRUE(listBatchFiles(dir.path(), u"*.sec"_s).names.isEmpty());
}

TEST(BatchFileList, AMissingFolderIsToldInGerman) {
    QTemporaryDir dir;
    const QString missing = dir.filePath(u"fehlt"_s);
    const BatchFileList list = listBatchFiles(missing, u"*.prt"_s);
    EXPECT_TRUE(list.names.isEmpty());
    EXPECT_EQ(list.error, u"Das Verzeichnis \u201E%1\u201C existiert nicht."_s.arg(QDir::toNativeSeparators(missing)));
    touch(dir.filePath(u"datei"_s));
    EXPECT_FALSE(listBatchFiles(dir.filePath(u"datei"_s), u"*"_s).error.isEmpty());
    EXPECT_FALSE(listBatchFiles(QString(), u"*"_s).error.isEmpty());
}

TEST(DoitFile, IsWrittenWithCrLfInTheCodePage) {
    QTemporaryDir dir;
    const QStringList lines = {u"! Kopf"_s, u"mapkey q1 @MAPKEY_LABELÖffnen größe.prt;\\"_s,
                               u"mapkey(continued) ~ Update `file_open` `Inputname` `größe.prt`;"_s};
    const DoitWriteResult result = writeDoitFile(dir.path(), lines, TextEncoding::codepageNamed(u"windows-1252"_s));
    ASSERT_TRUE(result.ok) << result.error.toStdString();
    EXPECT_EQ(result.path, QDir::toNativeSeparators(dir.filePath(u"doit.pro"_s)));
    EXPECT_EQ(contents(result.path), QByteArray("! Kopf\r\nmapkey q1 @MAPKEY_LABEL\xD6"
                                                "ffnen gr\xF6\xDF"
                                                "e.prt;\\\r\n"
                                                "mapkey(continued) ~ Update `file_open` `Inputname` `gr\xF6\xDF"
                                                "e.prt`;\r\n"));
}

TEST(DoitFile, RefusesWithoutTouchingTheOldFile) {
    QTemporaryDir dir;
    const QString old = dir.filePath(u"doit.pro"_s);
    touch(old, "alt\r\n");
    const TextEncoding cp1252 = TextEncoding::codepageNamed(u"windows-1252"_s);
    const struct {
        QString folder;
        QStringList lines;
        QString expected;
    } cases[] = {
        {QString(), {u"x"_s}, u"Bitte wählen Sie den Ordner"_s},
        {dir.filePath(u"fehlt"_s), {u"x"_s}, u"existiert nicht"_s},
        {dir.path(), {}, u"keine Mapkeys"_s},
        {dir.path(), {u"mapkey q1 `\u03A9.prt`;"_s}, u"nicht darstellbar"_s},
    };
    for (const auto& c : cases) {
        const DoitWriteResult result = writeDoitFile(c.folder, c.lines, cp1252);
        EXPECT_FALSE(result.ok);
        EXPECT_TRUE(result.error.contains(c.expected)) << result.error.toStdString();
        EXPECT_EQ(contents(old), QByteArray("alt\r\n"));
    }
    // A folder in the way of the file.
    QFile::remove(old);
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"doit.pro"_s));
    const DoitWriteResult blocked = writeDoitFile(dir.path(), {u"x"_s}, cp1252);
    EXPECT_FALSE(blocked.ok);
    EXPECT_FALSE(blocked.error.isEmpty());
}

class TastomatSettingsTest : public StoreSandbox {};

TEST_F(TastomatSettingsTest, RoundTripsEveryValue) {
    TastomatSettings settings = loadTastomatSettings();
    EXPECT_EQ(settings.patterns, u"*.prt;*.asm;*.drw"_s);
    EXPECT_EQ(settings.parameters, defaultBatchParameters());
    EXPECT_EQ(settings.templateId, u"oeffnen"_s);

    settings.folder = u"/daten/äöü"_s;
    settings.patterns = u"*.drw"_s;
    settings.templateId = u"speichern"_s;
    settings.targetFolder = u"/ziel"_s;
    settings.parameters.keyPrefix = u"$F"_s;
    settings.parameters.firstNumber = 40;
    settings.parameters.collectorKey = u"alle"_s;
    settings.parameters.templates[1].actions = QStringList{u"~ Command `A` ;"_s, u"~ Trail `b` `c`;"_s};
    ASSERT_TRUE(storeTastomatSettings(settings));

    const TastomatSettings loaded = loadTastomatSettings();
    EXPECT_EQ(loaded.folder, settings.folder);
    EXPECT_EQ(loaded.patterns, settings.patterns);
    EXPECT_EQ(loaded.templateId, settings.templateId);
    EXPECT_EQ(loaded.targetFolder, settings.targetFolder);
    EXPECT_EQ(loaded.parameters, settings.parameters);
}

TEST_F(TastomatSettingsTest, TheRegenerationStoredWithoutSavingGivesWayToTheCurrentTemplate) {
    SettingsStore store(u"Tastomat"_s);
    const QStringList retired = defaultActions(u"oeffnen"_s) + QStringList{u"~ Command `ProCmdRegenPart` ;"_s};
    store.setValue(u"Parameter"_s, u"regenerieren"_s, retired.join(u'\n'));
    EXPECT_EQ(loadTastomatSettings().parameters.templates.at(1).actions, defaultActions(u"regenerieren"_s));
    EXPECT_TRUE(defaultActions(u"regenerieren"_s).endsWith(u"~ Command `ProCmdWinCloseGroup` ;"_s));
    // Actions the user wrote are kept as they are.
    const QStringList own = retired + QStringList{u"~ Command `ProCmdModelSave` ;"_s};
    store.setValue(u"Parameter"_s, u"regenerieren"_s, own.join(u'\n'));
    EXPECT_EQ(loadTastomatSettings().parameters.templates.at(1).actions, own);
}

TEST_F(TastomatSettingsTest, DamagedValuesFallBackToTheDefaults) {
    SettingsStore store(u"Tastomat"_s);
    store.setValue(u"Parameter"_s, u"praefix"_s, u"q m"_s);
    store.setValue(u"Parameter"_s, u"startnummer"_s, u"viele"_s);
    store.setValue(u"Parameter"_s, u"sammeltaste"_s, u"a;b"_s);
    store.setValue(u"Parameter"_s, u"oeffnen"_s, u"~ Command `offen"_s);
    EXPECT_EQ(loadTastomatSettings().parameters, defaultBatchParameters());
}

} // namespace
