#pragma once

#include <QString>

namespace quenfor {

// The process killer's one setting: the name prefix it hunts (application "shooter", section
// "Optionen", key "txt_kill"). The default names no real program, so a hunt started by mistake
// ends nothing.
QString defaultHuntPrefix(); // "mDkCeP"
QString loadHuntPrefix();
bool saveHuntPrefix(const QString& prefix); // false when the store could not be written

} // namespace quenfor
