#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

// The index of the drive root that folder lies on: the longest root that begins it ("/home" before
// "/"); -1 when none does. Roots and folder may be written with native separators or with "/".
qsizetype driveContaining(const QStringList& driveRoots, const QString& folder);

} // namespace quenfor
