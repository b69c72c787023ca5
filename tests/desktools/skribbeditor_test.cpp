// The text editor's rules that decide what lands on disk and in the main document: where a save
// goes (and that it never creates a file), what the status line's commands are, where the caret
// stands, what the explanation says, and that the hand-back through quen.tmp loses no character.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#ifdef Q_OS_UNIX
#include "../common/unblockingfifo.h"
#endif
#include "desktools/caretposition.h"
#include "desktools/editorexplanation.h"
#include "desktools/editorfile.h"
#include "desktools/editorfilelist.h"
#include "desktools/skribbcommands.h"
#include "desktools/skribbsettings.h"
#include "desktools/texthandback.h"
#include "settings/mainsettings.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

// The program folder is the home folder here; each test gets an empty one.
class EditorFiles : public StoreSandbox {
protected:
    void SetUp() override {
        StoreSandbox::SetUp();
        ASSERT_TRUE(m_home.isValid());
        m_oldHome = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_home.path()));
    }
    void TearDown() override {
        qputenv("HOME", m_oldHome);
        StoreSandbox::TearDown();
    }
    QString home(const QString& name = {}) const { return name.isEmpty() ? m_home.path() : m_home.filePath(name); }

    const TextEncoding m_cp1252 = TextEncoding::codepageNamed(u"windows-1252"_s);

private:
    QTemporaryDir m_home;
    QByteArray m_oldHome;
};

TEST_F(EditorFiles, SaveWithoutANameNeverCreatesSkribbTxt) {
    const EditorSave save = saveEditorText(QString(), u"Text"_s, m_cp1252);
    EXPECT_EQ(save.outcome, EditorSave::Outcome::NeedsName);
    EXPECT_EQ(save.path, native(home(u"Skribb.txt"_s)));
    EXPECT_EQ(save.message, u"Bitte zuerst einen Namen vergeben !"_s);
    EXPECT_FALSE(QFile::exists(home(u"Skribb.txt"_s)));
}

TEST_F(EditorFiles, SaveWithoutANameReplacesAnExistingSkribbTxt) {
    writeBytes(home(u"Skribb.txt"_s), "alt\r\nalt\r\nalt\r\n");
    const EditorSave save = saveEditorText(QString(), u"eins\r\nzwei äöü"_s, m_cp1252);
    ASSERT_EQ(save.outcome, EditorSave::Outcome::Saved) << save.message.toStdString();
    EXPECT_EQ(save.status, u"Datei "_s + native(home(u"Skribb.txt"_s)) + u" wurde gespeichert"_s);
    EXPECT_EQ(readBytes(home(u"Skribb.txt"_s)), QByteArray("eins\r\nzwei \xe4\xf6\xfc\r\n"));
    EXPECT_TRUE(save.warning.isEmpty());
}

TEST_F(EditorFiles, SaveUnderTheCurrentNameOnlyWhenThatFileExists) {
    const QString named = home(u"notiz.txt"_s);
    EXPECT_EQ(saveEditorText(named, u"x"_s, m_cp1252).outcome, EditorSave::Outcome::NeedsName);
    EXPECT_FALSE(QFile::exists(named));
    // A folder of that name is no file to save into either.
    ASSERT_TRUE(QDir().mkdir(named));
    EXPECT_EQ(saveEditorText(named, u"x"_s, m_cp1252).outcome, EditorSave::Outcome::NeedsName);
    ASSERT_TRUE(QDir().rmdir(named));

    writeBytes(named, "vorher");
    const EditorSave save = saveEditorText(named, u"ł nachher"_s, m_cp1252);
    ASSERT_EQ(save.outcome, EditorSave::Outcome::Saved);
    EXPECT_EQ(readBytes(named), QByteArray("? nachher\r\n"));
    EXPECT_FALSE(save.warning.isEmpty()) << "a character the code page lacks is reported";
}

TEST_F(EditorFiles, SaveAsCreatesOrReplacesInTheChosenFolder) {
    ASSERT_TRUE(QDir(home()).mkdir(u"texte"_s));
    const QString folder = native(home(u"texte"_s)) + QDir::separator();
    const EditorSave created = saveEditorTextAs(folder, u"neu.txt"_s, u"a\r\n\r\nb\r\n"_s, TextEncoding::utf8(false));
    ASSERT_EQ(created.outcome, EditorSave::Outcome::Saved) << created.message.toStdString();
    // A folder that ends in a separator gets no second one.
    EXPECT_EQ(created.path, folder + u"neu.txt"_s);
    EXPECT_EQ(created.status, u"Datei wurde gespeichert unter "_s + folder + u"neu.txt"_s);
    EXPECT_EQ(readBytes(created.path), QByteArray("a\r\n\r\nb\r\n"));

    const EditorSave replaced = saveEditorTextAs(home(u"texte"_s), u"neu.txt"_s, u"c"_s, TextEncoding::utf8(false));
    ASSERT_EQ(replaced.outcome, EditorSave::Outcome::Saved);
    EXPECT_EQ(readBytes(created.path), QByteArray("c\r\n"));
}

TEST_F(EditorFiles, SaveAsFailuresSayWhyAndWriteNothing) {
    EXPECT_EQ(saveEditorTextAs(home(), u"  "_s, u"x"_s, m_cp1252).outcome, EditorSave::Outcome::NeedsName);

    const EditorSave missing = saveEditorTextAs(home(u"gibtsnicht"_s), u"a.txt"_s, u"x"_s, m_cp1252);
    EXPECT_EQ(missing.outcome, EditorSave::Outcome::Failed);
    EXPECT_TRUE(missing.message.startsWith(u"Hoppla, es ist ein Fehler aufgetreten !\n\n"_s));
    EXPECT_GT(missing.message.size(), 45) << "the reason follows the fixed text";

    ASSERT_TRUE(QDir(home()).mkdir(u"ordner"_s));
    const EditorSave folderInTheWay = saveEditorTextAs(home(), u"ordner"_s, u"x"_s, m_cp1252);
    EXPECT_EQ(folderInTheWay.outcome, EditorSave::Outcome::Failed);
    EXPECT_TRUE(QFileInfo(home(u"ordner"_s)).isDir());
}

TEST_F(EditorFiles, OpeningKeepsTheTextAndItsEncoding) {
    writeBytes(home(u"utf8.txt"_s), "\xEF\xBB\xBFgr\xC3\xBC\xC3\x9F\r\nzwei");
    EditorFile file = readEditorFile(home(u"utf8.txt"_s), {});
    ASSERT_TRUE(file.ok) << file.error.toStdString();
    EXPECT_EQ(file.text, u"grüß\r\nzwei"_s);
    EXPECT_EQ(file.encoding, TextEncoding::utf8(true));

    writeBytes(home(u"ansi.txt"_s), "gr\xFC\xDF\r");
    file = readEditorFile(home(u"ansi.txt"_s), {});
    ASSERT_TRUE(file.ok);
    EXPECT_EQ(file.text, u"grüß\r"_s);
    EXPECT_EQ(file.encoding.kind, TextEncoding::Kind::Codepage);

    writeBytes(home(u"leer.txt"_s), "");
    file = readEditorFile(home(u"leer.txt"_s), {});
    EXPECT_TRUE(file.ok);
    EXPECT_TRUE(file.text.isEmpty());
}

TEST_F(EditorFiles, OpeningRefusesWhatTheBoxCannotHold) {
    writeBytes(home(u"binär.dat"_s), QByteArray("MZ\0\0\x90", 5));
    QFile big(home(u"gross.txt"_s));
    ASSERT_TRUE(big.open(QIODevice::WriteOnly));
    ASSERT_TRUE(big.resize(kMaxEditorFileBytes + 1)); // sparse: costs no disk
    big.close();

    const struct {
        const char* label;
        QString path;
        QString reasonPart;
    } cases[] = {
        {"missing", home(u"fehlt.txt"_s), u"gibt es nicht"_s},
        {"folder", home(), u"ist ein Verzeichnis"_s},
        {"binary", home(u"binär.dat"_s), u"Binärdaten"_s},
        {"too big", home(u"gross.txt"_s), u"zu groß"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.label);
        const EditorFile file = readEditorFile(c.path, {});
        EXPECT_FALSE(file.ok);
        EXPECT_TRUE(file.error.startsWith(u"Hoppla, es ist ein Fehler aufgetreten !"_s));
        EXPECT_TRUE(file.error.contains(c.reasonPart)) << file.error.toStdString();
    }
}

#ifdef Q_OS_UNIX
TEST_F(EditorFiles, APipeIsRefusedInsteadOfOpenedAsEmpty) {
    UnblockingFifo fifo(home(u"pipe.txt"_s));
    ASSERT_TRUE(fifo.isValid());
    const EditorFile file = readEditorFile(home(u"pipe.txt"_s), {});
    EXPECT_FALSE(file.ok);
    EXPECT_TRUE(file.error.contains(u"keine gewöhnliche Datei"_s)) << file.error.toStdString();
}
#endif

TEST_F(EditorFiles, OpenBoxListsTheFilesOfThePattern) {
    for (const QString& name : {u"b.PRO"_s, u"a.pro"_s, u"c.txt"_s, u"ohne"_s, u".versteckt.pro"_s})
        writeBytes(home(name), "x");
    ASSERT_TRUE(QDir(home()).mkdir(u"ordner.pro"_s));
    EXPECT_EQ(editorFilesIn(home(), u"*.pro"_s), (QStringList{u"a.pro"_s, u"b.PRO"_s}));
    EXPECT_EQ(editorFilesIn(home(), u"*.*"_s), (QStringList{u"a.pro"_s, u"b.PRO"_s, u"c.txt"_s, u"ohne"_s}));
    EXPECT_EQ(editorFilesIn(home(), u"*.txt; *.pro"_s), (QStringList{u"a.pro"_s, u"b.PRO"_s, u"c.txt"_s}));
    EXPECT_TRUE(editorFilesIn(home(), QString()).isEmpty());
    EXPECT_TRUE(editorFilesIn(home(u"fehlt"_s), u"*.*"_s).isEmpty());
}

struct CommandCase {
    const char* text;
    SkribbCommand command;
};

TEST(SkribbCommands, ExactWordsOnly) {
    const CommandCase cases[] = {
        {"help", SkribbCommand::Help},       {"info", SkribbCommand::Help},
        {"DOS", SkribbCommand::Terminal},    {"dos", SkribbCommand::Terminal},
        {"X", SkribbCommand::EndProgram},    {"x", SkribbCommand::EndProgram},
        {"EXIT", SkribbCommand::EndProgram}, {"exit", SkribbCommand::EndProgram},
        {"autor", SkribbCommand::Author},    {"Help", SkribbCommand::None},
        {"INFO", SkribbCommand::None},       {"Dos", SkribbCommand::None},
        {"Exit", SkribbCommand::None},       {"exit ", SkribbCommand::None},
        {" x", SkribbCommand::None},         {"Autor", SkribbCommand::None},
        {"", SkribbCommand::None},           {"Zeile 1, Spalte 1", SkribbCommand::None},
    };
    for (const CommandCase& c : cases)
        EXPECT_EQ(skribbCommand(QString::fromUtf8(c.text)), c.command) << '"' << c.text << '"';
    EXPECT_FALSE(skribbAuthorText().isEmpty());
}

struct CaretCase {
    const char16_t* text;
    qsizetype caret;
    LineColumn place;
};

TEST(CaretPosition, LinesAndColumnsCountFromOne) {
    const CaretCase cases[] = {
        {u"", 0, {1, 1}},          {u"abc", 0, {1, 1}},      {u"abc", 3, {1, 4}},
        {u"ab\r\ncd", 4, {2, 1}},  {u"ab\r\ncd", 6, {2, 3}}, {u"ab\r\ncd", 3, {1, 4}}, // between CR and LF
        {u"ab\r\ncd", 2, {1, 3}},  {u"\r\n\r\n", 4, {3, 1}}, {u"a\rb\nc", 5, {3, 2}},  // a lone CR or LF breaks too
        {u"ab\r\ncd", 99, {2, 3}}, {u"ab", -5, {1, 1}},
    };
    for (const CaretCase& c : cases) {
        const QString text = QString::fromUtf16(c.text);
        EXPECT_EQ(lineColumnAt(text, c.caret), c.place) << text.toStdString() << " @" << c.caret;
    }
    EXPECT_EQ(lineColumnText({1, 1}), u"Zeile 1, Spalte 1"_s);
    EXPECT_EQ(lineColumnText({12, 305}), u"Zeile 12, Spalte 305"_s);
}

class EditorExplanationTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_data.isValid());
        m_kb = m_data.filePath(u"config_opts.txt"_s);
        writeBytes(m_kb,
                   "zuerst\r\nfoo_option  ja | nein\r\nErkl\xe4rung 1\r\nE2\r\nE3\r\nE4\r\nE5\r\nnach dem Block\r\n"
                   "foo_option zweiter Eintrag\r\nZ1\r\nZ2\r\nZ3\r\nZ4\r\nZ5\r\n");
    }
    QTemporaryDir m_data;
    QString m_kb;
};

// Mapkeys, their continuations, blank lines, favourites and comments each have their own fixed
// text, which needs no knowledge base.
TEST_F(EditorExplanationTest, FixedTextsForTheFiveLineKinds) {
    const QString missing = m_data.filePath(u"fehlt.txt"_s);
    const auto text = [&](const QString& line) {
        const EditorExplanation e = explainEditorLine(line, missing);
        EXPECT_FALSE(e.knowledgeBaseMissing) << line.toStdString();
        return e.text;
    };
    const QStringList texts = {text(u"mapkey $F2 @MAPKEY_LABEL"_s), text(u"mapkey(continued) ~ Activate"_s),
                               text(QString()), text(u"browser_favoriteX c:\\"_s), text(u"! foo_option ja"_s)};
    EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()).size(), 5) << texts.join(u'\n').toStdString();
    EXPECT_FALSE(texts.contains(QString()));
    EXPECT_EQ(text(u"mapkeyx"_s), texts.first());
}

TEST_F(EditorExplanationTest, OptionLinesShowTheFirstEntryUnderTheEditorsHeading) {
    const QString expected =
        u"*** Erklärung des Begriffes: ***\nfoo_option  ja | nein\nErklärung 1\nE2\nE3\nE4\nE5\n ..."_s;
    EXPECT_EQ(explainEditorLine(u"foo_option   nein"_s, m_kb).text, expected);
    EXPECT_EQ(explainEditorLine(u"foo_option"_s, m_kb).text, expected);
    EXPECT_EQ(explainEditorLine(u"unbekannt ja"_s, m_kb).text, u"*** Erklärung des Begriffes: ***"_s);
    // Leading blanks leave an empty keyword, which every line begins with.
    EXPECT_TRUE(
        explainEditorLine(u"  foo_option"_s, m_kb).text.startsWith(u"*** Erklärung des Begriffes: ***\nzuerst\n"_s));
}

TEST_F(EditorExplanationTest, MissingKnowledgeBaseIsReported) {
    const EditorExplanation e = explainEditorLine(u"foo_option ja"_s, m_data.filePath(u"fehlt.txt"_s));
    EXPECT_TRUE(e.knowledgeBaseMissing);
    EXPECT_TRUE(e.text.isEmpty());

    qputenv("QUENFOR_DATA_DIR", QFile::encodeName(m_data.path()));
    EXPECT_EQ(editorKnowledgeBasePath(), native(m_kb));
    qunsetenv("QUENFOR_DATA_DIR");
}

class HandBackTest : public StoreSandbox {
protected:
    void SetUp() override {
        StoreSandbox::SetUp();
        ASSERT_TRUE(m_temp.isValid());
    }
    QString temp() const { return native(m_temp.path()) + QDir::separator(); }
    QTemporaryDir m_temp;
};

TEST_F(HandBackTest, LinesComeBackExactlyAndTheFileIsGone) {
    // Characters the code page lacks and a byte no code page decodes must survive the file.
    const QString text = u"eins\r\nzwei äöü ł €\r\n\r\nvier "_s + QChar(0xDC81) + u"\rfünf\nsechs\r\n"_s;
    const HandBack back = handBackThroughFile(text, temp());
    EXPECT_TRUE(back.problem.isEmpty()) << back.problem.toStdString();
    EXPECT_EQ(back.lines,
              (QStringList{u"eins"_s, u"zwei äöü ł €"_s, QString(), u"vier "_s + QChar(0xDC81), u"fünf\nsechs"_s}));
    EXPECT_FALSE(QFile::exists(temp() + u"quen.tmp"_s));
}

TEST_F(HandBackTest, AFileThatCannotBeWrittenLosesNothing) {
    ASSERT_TRUE(QDir(m_temp.path()).mkdir(u"quen.tmp"_s)); // a folder in the way
    HandBack back = handBackThroughFile(u"a\r\nb"_s, temp());
    EXPECT_EQ(back.lines, (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(back.problem.contains(u"konnte nicht geschrieben werden"_s)) << back.problem.toStdString();
    EXPECT_TRUE(QFileInfo(temp() + u"quen.tmp"_s).isDir());

    back = handBackThroughFile(u"c"_s, native(m_temp.filePath(u"fehlt"_s)));
    EXPECT_EQ(back.lines, QStringList{u"c"_s});
    EXPECT_FALSE(back.problem.isEmpty());
}

TEST_F(HandBackTest, QuestionAndTempFolder) {
    EXPECT_EQ(handBackQuestion(u"C:\\a.txt"_s), u"Text C:\\a.txt in Liste übernehmen ?"_s);
    EXPECT_EQ(handBackQuestion(QString()), u"Text  in Liste übernehmen ?"_s);
    setSettingValue(Setting::TxtTempdir, temp());
    EXPECT_EQ(editorTempFolder(), temp());
    EXPECT_EQ(translationBackupPath(temp()), temp() + u"skribb.tmp"_s);
    const WriteResult backup = writeTranslationBackup(translationBackupPath(temp()), u"ł\r\nb"_s);
    ASSERT_TRUE(backup.ok);
    EXPECT_EQ(readBytes(temp() + u"skribb.tmp"_s), QByteArray("\xEF\xBB\xBF\xC5\x82\r\nb\r\n"));
}

using SkribbSettingsTest = StoreSandbox;

TEST_F(SkribbSettingsTest, RoundTripUnderTheKeysOfTheIniFile) {
    const SkribbSettings settings = {u"/x/y"_s, u"/x"_s, u"*.txt"_s, true, u"schwarz"_s};
    ASSERT_TRUE(storeSkribbSettings(settings));
    const SkribbSettings back = loadSkribbSettings();
    EXPECT_EQ(back.folder, u"/x/y"_s);
    EXPECT_EQ(back.drive, u"/x"_s);
    EXPECT_EQ(back.filter, u"*.txt"_s);
    EXPECT_TRUE(back.explain);
    EXPECT_EQ(back.colourWord, u"schwarz"_s);

    QSettings ini(iniFile(u"Skribb"_s), QSettings::IniFormat);
    EXPECT_EQ(ini.value(u"Optionen/chkerklaer.Value"_s).toString(), u"1"_s);
    EXPECT_EQ(ini.value(u"Optionen/lbl_schwarzweissblau"_s).toString(), u"schwarz"_s);
}

TEST_F(SkribbSettingsTest, TheCheckBoxIsOneKeyUnderBothSpellings) {
    {
        QSettings ini(iniFile(u"Skribb"_s), QSettings::IniFormat);
        ini.setValue(u"Optionen/chkErklaer.Value"_s, u"1"_s);
    }
    EXPECT_TRUE(loadSkribbSettings().explain);
    SkribbSettings settings = loadSkribbSettings();
    settings.explain = false;
    ASSERT_TRUE(storeSkribbSettings(settings));
    EXPECT_FALSE(loadSkribbSettings().explain) << "the written spelling wins";
}

TEST_F(SkribbSettingsTest, OwnKeysFallBackOnBadValues) {
    {
        QSettings ini(iniFile(u"Skribb"_s), QSettings::IniFormat);
        ini.setValue(u"Optionen/Uebersetzungsdienst"_s, u" http://127.0.0.1:9/ "_s);
        ini.setValue(u"Optionen/Uebersetzungszeitlimit"_s, u"0"_s);
        ini.setValue(u"Optionen/Hilfeseite"_s, u"https://intranet/skribb.html"_s);
    }
    EXPECT_EQ(translationEndpoint(), u"http://127.0.0.1:9/"_s);
    EXPECT_EQ(translationTimeoutSeconds(), 15);
    EXPECT_EQ(skribbHelpPage(), u"https://intranet/skribb.html"_s);
    {
        QSettings ini(iniFile(u"Skribb"_s), QSettings::IniFormat);
        ini.setValue(u"Optionen/Uebersetzungszeitlimit"_s, u"3"_s);
        ini.remove(u"Optionen/Hilfeseite"_s);
    }
    EXPECT_EQ(translationTimeoutSeconds(), 3);
    qputenv("QUENFOR_DATA_DIR", "/opt/quenfor-daten");
    EXPECT_EQ(skribbHelpPage(), native(u"/opt/quenfor-daten/skribb_hilfe.html"_s));
    qunsetenv("QUENFOR_DATA_DIR");
}

} // namespace
