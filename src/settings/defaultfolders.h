#pragma once

#include <QString>

// Defaults of the main window's file and folder settings. On Windows they are the fixed paths
// that long-time users know; elsewhere those paths would not exist, so they follow the user's
// home. One implementation file per platform.
namespace quenfor {

QString defaultConfigFile(); // the last opened file before any was opened
QString defaultFolder();     // folder of the file chooser
QString defaultDrive();      // drive (volume) of the file chooser
QString defaultTempFolder(); // temporary folder, ending in a separator

} // namespace quenfor
