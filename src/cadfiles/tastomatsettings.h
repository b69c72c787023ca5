#pragma once

#include "cadfiles/batchmapkeys.h"

#include <QString>

namespace quenfor {

// The mapkey generator keeps everything under its own application "Tastomat": section "Optionen"
// with "dir1" (folder of the files), "muster" (patterns), "vorlage" (template id), "zielordner"
// (folder of doit.pro; empty: the files' folder), section "Parameter" with "praefix", "startnummer",
// "sammeltaste" and one key per template id holding its actions, one a line.
struct TastomatSettings {
    QString folder;
    QString patterns;
    QString templateId;
    QString targetFolder;
    BatchParameters parameters;
};

// Stored values that do not pass the parameter checks fall back to their defaults, so a damaged
// store never gives mapkeys the CAD system cannot read.
TastomatSettings loadTastomatSettings();
// Returns false when the store could not be written.
bool storeTastomatSettings(const TastomatSettings& settings);

} // namespace quenfor
