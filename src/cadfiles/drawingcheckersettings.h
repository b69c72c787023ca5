#pragma once

#include <QString>

namespace quenfor {

// The drawing/model checker keeps its folder and drive under its own application "Kauzblick",
// section "Optionen", keys "dir1" and "drive1"; before the first use "C:\" and "C:" on Windows,
// the home folder and its volume elsewhere.
struct DrawingCheckerSettings {
    QString folder;
    QString drive;
};

DrawingCheckerSettings loadDrawingCheckerSettings();
// Returns false when the store could not be written.
bool storeDrawingCheckerSettings(const DrawingCheckerSettings& settings);

} // namespace quenfor
