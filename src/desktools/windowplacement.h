#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace quenfor {

// Where a tool window opens whose top-left corner was stored at `stored`: there, when enough of
// its title strip lies on one of the screens to grab it with the mouse; otherwise (a screen was
// removed, the store holds nonsense) at the top-left corner of the first screen.
QPoint visibleWindowPosition(QPoint stored, QSize size, const QList<QRect>& screens);

} // namespace quenfor
