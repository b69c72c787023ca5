#pragma once

#include <QString>

namespace quenfor {

// The two settings of "Dr.Fegel" (application "DrFegel", section "Optionen").
struct PurgeSettings {
    QString folder;           // dir1: the folder shown last
    QString cleaningPatterns; // txt_cleaningOptions

    static QString defaultFolder(); // "C:\" on Windows, the home folder elsewhere
    static PurgeSettings load();
    bool save() const; // false when the store could not be written
};

} // namespace quenfor
