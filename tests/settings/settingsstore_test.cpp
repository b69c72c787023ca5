#include "storesandbox.h"

#include "settings/settingsstore.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using SettingsStoreTest = StoreSandbox;

TEST_F(SettingsStoreTest, RoundTripKeepsTextExactly) {
    // Texts that INI files treat specially: separators, quotes, commas, blanks, non-ASCII.
    const QStringList values{
        u"D:\\config.pro"_s, u"/home/anna/config.pro"_s, u"weiss"_s,   u"a, b,c"_s, u"  leading and trailing  "_s,
        u"\"quoted\""_s,     u"Prüfung ß €"_s,           u"x=y;z#w"_s, QString()};
    SettingsStore store(u"quenfor"_s);
    for (const QString& value : values) {
        ASSERT_TRUE(store.setValue(u"Optionen"_s, u"label1"_s, value));
        EXPECT_EQ(SettingsStore(u"quenfor"_s).value(u"Optionen"_s, u"label1"_s, u"default"_s), value);
    }
}

TEST_F(SettingsStoreTest, ApplicationsAndSectionsAreSeparate) {
    ASSERT_TRUE(SettingsStore(u"quenfor"_s).setValue(u"Optionen"_s, u"k"_s, u"main"_s));
    ASSERT_TRUE(SettingsStore(u"vistrel"_s).setValue(u"Optionen"_s, u"k"_s, u"viewer"_s));
    ASSERT_TRUE(SettingsStore(u"quenfor"_s).setValue(u"Andere"_s, u"k"_s, u"other"_s));

    EXPECT_EQ(SettingsStore(u"quenfor"_s).value(u"Optionen"_s, u"k"_s, {}), u"main"_s);
    EXPECT_EQ(SettingsStore(u"vistrel"_s).value(u"Optionen"_s, u"k"_s, {}), u"viewer"_s);
    EXPECT_EQ(SettingsStore(u"quenfor"_s).value(u"Andere"_s, u"k"_s, {}), u"other"_s);
    EXPECT_EQ(SettingsStore(u"vistrel"_s).value(u"Andere"_s, u"k"_s, u"Vorgabe"_s), u"Vorgabe"_s);
}

TEST_F(SettingsStoreTest, StoreIsAnIniFileUnderTheRoot) {
    SettingsStore store(u"DrFegel"_s);
    EXPECT_EQ(store.location(), iniFile(u"DrFegel"_s));
    ASSERT_TRUE(store.setValue(u"Optionen"_s, u"tiefe"_s, u"3"_s));

    QFile file(iniFile(u"DrFegel"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    EXPECT_TRUE(content.contains("[Optionen]")) << content.constData();
    EXPECT_TRUE(content.contains("tiefe=3")) << content.constData();
}

#ifndef Q_OS_WIN
TEST_F(SettingsStoreTest, WithoutRootTheStoreIsAnIniFileInTheConfigFolder) {
    SettingsStore::setStoreRoot(QString());
    // The test program runs with its own XDG_CONFIG_HOME (see the sandbox); only the path is read.
    const QString configHome = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    ASSERT_FALSE(configHome.isEmpty());
    EXPECT_EQ(SettingsStore(u"Pfadolin"_s).location(), configHome + u"/VB and VBA Program Settings/Pfadolin.ini"_s);
}
#endif

TEST_F(SettingsStoreTest, HandEditedUnquotedListReadsAsText) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(iniFile(u"quenfor"_s)).path()));
    QFile file(iniFile(u"quenfor"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Optionen]\nlabel1=a, b\n");
    file.close();

    EXPECT_EQ(SettingsStore(u"quenfor"_s).value(u"Optionen"_s, u"label1"_s, {}), u"a, b"_s);
}

TEST_F(SettingsStoreTest, RemoveDeletesEverythingAndLaterWritesStartEmpty) {
    SettingsStore store(u"Kauzblick"_s);
    ASSERT_TRUE(store.setValue(u"Optionen"_s, u"alt"_s, u"1"_s));
    ASSERT_TRUE(store.setValue(u"Fenster"_s, u"links"_s, u"2"_s));

    EXPECT_EQ(store.remove(), QString());
    EXPECT_FALSE(QFileInfo::exists(iniFile(u"Kauzblick"_s)));
    EXPECT_EQ(store.value(u"Optionen"_s, u"alt"_s, u"weg"_s), u"weg"_s);

    // Qt caches INI files within the process: the old keys must not come back with a new write.
    ASSERT_TRUE(store.setValue(u"Optionen"_s, u"neu"_s, u"3"_s));
    EXPECT_EQ(store.value(u"Optionen"_s, u"alt"_s, u"weg"_s), u"weg"_s);
    EXPECT_EQ(store.value(u"Fenster"_s, u"links"_s, u"weg"_s), u"weg"_s);
    EXPECT_EQ(store.value(u"Optionen"_s, u"neu"_s, {}), u"3"_s);
}

} // namespace
} // namespace quenfor
