#include "storesandbox.h"

#include "settings/mainsettings.h"
#include "settings/tempdircheck.h"
#include "settings/trailingseparator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

const QString missingText = u"Das angegebene Verzeichnis existiert nicht ! "
                            u"Bitte geben Sie ein gültiges Verzeichnis mit Schreibrechten an !"_s;
const QString notWritableText = u"Das angegebene Verzeichnis hat keine Schreibrechte ! "
                                u"Bitte geben Sie ein gültiges Verzeichnis mit Schreibrechten an !"_s;

class TempDirCheckTest : public StoreSandbox {
protected:
    void SetUp() override {
        StoreSandbox::SetUp();
        ASSERT_TRUE(m_work.isValid());
    }

    QString work(const QString& name = QString()) const {
        return name.isEmpty() ? m_work.path() : m_work.path() + u'/' + name;
    }

    // A check that fails must neither store the folder nor leave the test file behind.
    void expectRefused(const TempDirCheck& check, const QString& message) const {
        EXPECT_FALSE(check.ok);
        EXPECT_EQ(check.message, message);
        EXPECT_TRUE(check.displayText.isEmpty());
        EXPECT_EQ(settingValue(Setting::TxtTempdir), settingDefinition(Setting::TxtTempdir).defaultValue);
        if (QFileInfo(check.folder).isDir()) {
            EXPECT_TRUE(QDir(check.folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).isEmpty());
        }
    }

private:
    QTemporaryDir m_work;
};

TEST_F(TempDirCheckTest, UsableFolderIsStoredAndLeavesNoTestFile) {
    const struct {
        QString text;
        QString folder;
    } cases[] = {{work(), work() + QDir::separator()}, {work() + u'/', work() + u'/'}};
    for (const auto& [text, folder] : cases) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(tempDirTextState(text), TempDirTextState::Exists);
        const TempDirCheck check = checkTempDir(text);

        EXPECT_TRUE(check.ok);
        EXPECT_EQ(check.folder, folder);
        EXPECT_TRUE(check.message.isEmpty());
        EXPECT_EQ(check.displayText, u"temp Dir: "_s + folder);
        EXPECT_EQ(settingValue(Setting::TxtTempdir), folder);
        EXPECT_TRUE(QDir(work()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).isEmpty());
    }
}

TEST_F(TempDirCheckTest, MissingFolderOrFileInTheWay) {
    QFile file(work(u"eine-datei"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();

    for (const QString& text : {work(u"fehlt"_s), work(u"eine-datei"_s), QString()}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(tempDirTextState(text), TempDirTextState::Missing);
        expectRefused(checkTempDir(text), missingText);
    }
    EXPECT_TRUE(QFileInfo(work(u"eine-datei"_s)).isFile());
}

// Whatever lies in the folder under a likely name (a folder, a link someone planted to a file of
// ours) is neither written through nor removed: the test file is new and unique.
TEST_F(TempDirCheckTest, PlantedNamesAreNeverWrittenThrough) {
    ASSERT_TRUE(QDir().mkpath(work(u"quenfor.tmp/inhalt"_s)));
    QFile victim(work(u"opfer.txt"_s));
    ASSERT_TRUE(victim.open(QIODevice::WriteOnly));
    victim.write("bleibt");
    victim.close();
    ASSERT_TRUE(QFile::link(work(u"opfer.txt"_s), work(u"quenfor-link.tmp"_s)));
    const QStringList before = QDir(work()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);

    EXPECT_TRUE(checkTempDir(work()).ok);

    EXPECT_TRUE(QFileInfo(work(u"quenfor.tmp/inhalt"_s)).isDir());
    ASSERT_TRUE(victim.open(QIODevice::ReadOnly));
    EXPECT_EQ(victim.readAll(), "bleibt");
    EXPECT_EQ(QDir(work()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System), before);
}

TEST_F(TempDirCheckTest, ReadOnlyFolderIsRefused) {
    const QString folder = work(u"nur-lesen"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    QFile probe(folder + u"/probe"_s);
    if (probe.open(QIODevice::WriteOnly)) {
        probe.close();
        probe.remove();
        GTEST_SKIP() << "this user writes into read-only folders (root), so the refusal cannot be seen";
    }

    expectRefused(checkTempDir(folder), notWritableText);

    ASSERT_TRUE(
        QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
}

TEST(TrailingSeparator, AppendedOnce) {
    const QString sep = QDir::separator();
    const struct {
        QString folder;
        QString expected;
    } cases[] = {
        {u"tmp"_s, u"tmp"_s + sep}, {u"tmp"_s + sep, u"tmp"_s + sep}, {u"tmp/"_s, u"tmp/"_s}, {sep, sep},
        {QString(), sep},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(withTrailingSeparator(c.folder), c.expected) << c.folder.toStdString();
    }
}

} // namespace
} // namespace quenfor
