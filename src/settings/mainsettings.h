#pragma once

#include <QString>

namespace quenfor {

// The main window's settings. Each is named after the control that shows it, which is also its
// key in the store.
enum class Setting {
    Label1,              // the open file
    Dir1,                // last folder of the file chooser
    Drive1,              // last drive (volume) of the file chooser
    TxtTempdir,          // temporary folder, ending in a separator
    LblSchwarzweissblau, // colour scheme: "schwarz", "weiss" or "blau"
    Codepage,            // code page of the configuration files
    ChkErklaerbaer,      // "1": every clicked line is explained at once
    Zielversion,         // release the check and the picker look at ("CP6"); empty: none chosen
};

struct SettingDefinition {
    QString application;
    QString section;
    QString key;
    QString defaultValue;
};

// The one place that names each setting's application, section, key and default.
const SettingDefinition& settingDefinition(Setting setting);

QString settingValue(Setting setting);
// Returns false when the store could not be written.
bool setSettingValue(Setting setting, const QString& value);

} // namespace quenfor
