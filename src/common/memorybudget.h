#pragma once

#include <QString>

namespace quenfor {

// Whether this process may still take `bytes` more memory under its address space limit
// (ulimit -v). Qt's containers do not report a failed allocation, they crash; so work that will
// need a lot is refused before it starts, with the German reason, and loses nothing.
// Empty when it fits or no limit is set.
QString memoryShortfallFor(qint64 bytes);

// The same rule for a given limit and use; limit < 0: none.
QString memoryShortfall(qint64 bytes, qint64 limit, qint64 used);

} // namespace quenfor
