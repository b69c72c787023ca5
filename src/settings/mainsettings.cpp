#include "settings/mainsettings.h"

#include "settings/defaultfolders.h"
#include "settings/settingsstore.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct Entry {
    Setting setting;
    SettingDefinition definition;
};

const std::array<Entry, 8>& table() {
    static const QString application = u"quenfor"_s;
    static const QString section = u"Optionen"_s;
    static const std::array<Entry, 8> entries{{
        {Setting::Label1, {application, section, u"label1"_s, defaultConfigFile()}},
        {Setting::Dir1, {application, section, u"dir1"_s, defaultFolder()}},
        {Setting::Drive1, {application, section, u"drive1"_s, defaultDrive()}},
        {Setting::TxtTempdir, {application, section, u"txt_tempdir"_s, defaultTempFolder()}},
        {Setting::LblSchwarzweissblau, {application, section, u"lbl_schwarzweissblau"_s, u"weiss"_s}},
        {Setting::Codepage, {application, section, u"Codepage"_s, u"windows-1252"_s}},
        {Setting::ChkErklaerbaer, {application, section, u"chk_erklaerbaer"_s, u"0"_s}},
        {Setting::Zielversion, {application, section, u"Zielversion"_s, QString()}},
    }};
    return entries;
}

} // namespace

const SettingDefinition& settingDefinition(Setting setting) {
    const auto& entries = table();
    const auto found =
        std::find_if(entries.begin(), entries.end(), [setting](const Entry& e) { return e.setting == setting; });
    Q_ASSERT(found != entries.end());
    return found->definition;
}

QString settingValue(Setting setting) {
    const SettingDefinition& definition = settingDefinition(setting);
    return SettingsStore(definition.application).value(definition.section, definition.key, definition.defaultValue);
}

bool setSettingValue(Setting setting, const QString& value) {
    const SettingDefinition& definition = settingDefinition(setting);
    return SettingsStore(definition.application).setValue(definition.section, definition.key, value);
}

} // namespace quenfor
