#include "storesandbox.h"

#include "settings/mainsettings.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using MainSettingsTest = StoreSandbox;

// An empty store gives each setting's default; each stored value reads back as written, untouched
// by the others' (no two settings share a key).
TEST_F(MainSettingsTest, EmptyStoreGivesTheDefaultAndValuesReadBack) {
    const int count = static_cast<int>(Setting::Zielversion) + 1;
    const auto written = [](int i) { return u"Wert Ü, \\x %1"_s.arg(i); };
    for (int i = 0; i < count; ++i) {
        const auto setting = static_cast<Setting>(i);
        EXPECT_EQ(settingValue(setting), settingDefinition(setting).defaultValue) << i;
        ASSERT_TRUE(setSettingValue(setting, written(i)));
    }
    for (int i = 0; i < count; ++i)
        EXPECT_EQ(settingValue(static_cast<Setting>(i)), written(i)) << i;
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
