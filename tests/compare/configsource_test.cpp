// Files read for comparing: every shape the editor opens, and refusals in German.
#include "compare/configsource.h"
#include "compare/repeatableoptions.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class ConfigSourceTest : public ::testing::Test {
protected:
    QTemporaryDir dir;

    QString write(const QString& name, const QByteArray& bytes) {
        QFile f(dir.filePath(name));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return f.fileName();
    }
};

} // namespace

TEST_F(ConfigSourceTest, ReadsCodePagesAndLineEndsAsTheEditor) {
    const ConfigSourceRead ansi = readConfigSource(write(u"config.pro"_s, "pro_format_dir C:\\Vorlagen\\Gr\xf6\xdf"
                                                                          "e\r\nbell no\rx 1"_ba),
                                                   {});
    ASSERT_TRUE(ansi.ok) << ansi.error.toStdString();
    EXPECT_EQ(ansi.source.lines, (QStringList{u"pro_format_dir C:\\Vorlagen\\Größe"_s, u"bell no"_s, u"x 1"_s}));
    EXPECT_FALSE(ansi.source.locking);

    const ConfigSourceRead bom = readConfigSource(write(u"Config.SUP"_s, "\xef\xbb\xbf"
                                                                         "bell no\r\n"_ba),
                                                  {});
    ASSERT_TRUE(bom.ok);
    EXPECT_EQ(bom.source.lines, QStringList{u"bell no"_s});
    EXPECT_TRUE(bom.source.locking); // the name decides, in any case
}

TEST_F(ConfigSourceTest, RefusesWhatIsNoConfigurationFile) {
    const QString binary = write(u"teil.prt"_s, QByteArray("#UGC:2 PART\0\0\x01\x02", 15));
    const ConfigSourceRead read = readConfigSource(binary, {});
    EXPECT_FALSE(read.ok);
    EXPECT_EQ(read.error, u"Die Datei %1 enthält Binärdaten (NUL-Bytes) und ist keine Konfigurationsdatei; sie wird "
                          u"nicht verglichen."_s.arg(QDir::toNativeSeparators(binary)));

    const ConfigSourceRead missing = readConfigSource(dir.filePath(u"fehlt.pro"_s), {});
    EXPECT_FALSE(missing.ok);
    EXPECT_TRUE(missing.error.contains(u"existiert nicht"_s)) << missing.error.toStdString();

    const ConfigSourceRead folder = readConfigSource(dir.path(), {});
    EXPECT_FALSE(folder.ok);
    EXPECT_TRUE(folder.error.contains(u"Verzeichnis"_s)) << folder.error.toStdString();
}

TEST(RepeatableOptions, TheShippedListAndTheFallbackWithoutIt) {
    const RepeatableOptions shipped = loadRepeatableOptions(QStringLiteral(QUENFOR_DATA_FOLDER));
    EXPECT_TRUE(shipped.note.isEmpty()) << shipped.note.toStdString();
    EXPECT_TRUE(shipped.names.contains(u"search_path"_s));
    EXPECT_FALSE(shipped.names.contains(u"bell"_s));

    QTemporaryDir empty;
    const RepeatableOptions fallback = loadRepeatableOptions(empty.path());
    EXPECT_EQ(fallback.names, QSet<QString>{u"search_path"_s});
    EXPECT_TRUE(fallback.note.contains(u"repeatable_options.txt"_s)) << fallback.note.toStdString();
}
