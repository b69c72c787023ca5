#include "storesandbox.h"

#include "settings/mainsettings.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

struct DefinitionCase {
    Setting setting;
    QString key;
    QString defaultValue;
};

std::vector<DefinitionCase> definitionCases() {
#ifdef Q_OS_WIN
    const QString configFile = u"D:\\config.pro"_s;
    const QString folder = u"C:\\"_s;
    const QString drive = u"C:"_s;
    const QString tempFolder = u"C:\\"_s;
#else
    const QString configFile = QDir::homePath() + u"/config.pro"_s;
    const QString folder = QDir::homePath();
    const QString drive = settingDefinition(Setting::Drive1).defaultValue; // checked on its own below
    const QString tempFolder = QDir::tempPath() + u'/';
#endif
    return {
        {Setting::Label1, u"label1"_s, configFile},
        {Setting::Dir1, u"dir1"_s, folder},
        {Setting::Drive1, u"drive1"_s, drive},
        {Setting::TxtTempdir, u"txt_tempdir"_s, tempFolder},
        {Setting::LblSchwarzweissblau, u"lbl_schwarzweissblau"_s, u"weiss"_s},
        {Setting::Codepage, u"Codepage"_s, u"windows-1252"_s},
        {Setting::Zielversion, u"Zielversion"_s, QString()},
    };
}

using MainSettingsTest = StoreSandbox;

TEST_F(MainSettingsTest, TableNamesKeysAndDefaults) {
    for (const DefinitionCase& c : definitionCases()) {
        SCOPED_TRACE(c.key.toStdString());
        const SettingDefinition& definition = settingDefinition(c.setting);
        EXPECT_EQ(definition.application, u"quenfor"_s);
        EXPECT_EQ(definition.section, u"Optionen"_s);
        EXPECT_EQ(definition.key, c.key);
        EXPECT_EQ(definition.defaultValue, c.defaultValue);
        EXPECT_EQ(settingValue(c.setting), c.defaultValue) << "an empty store gives the default";
    }
}

#ifndef Q_OS_WIN
TEST_F(MainSettingsTest, DefaultDriveIsTheVolumeOfHome) {
    const QString drive = settingDefinition(Setting::Drive1).defaultValue;
    ASSERT_FALSE(drive.isEmpty());
    EXPECT_TRUE(QDir::homePath().startsWith(drive)) << drive.toStdString();
}
#endif

} // namespace
} // namespace quenfor
