#pragma once

#include <QStringList>

namespace quenfor {

// The roots of the drives the user can pick: "C:\" ... on Windows, the mounted volumes elsewhere,
// in the system's order.
QStringList logicalDrives();

} // namespace quenfor
