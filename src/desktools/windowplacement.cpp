#include "desktools/windowplacement.h"

#include <algorithm>

namespace quenfor {

namespace {

constexpr int kTitleHeight = 24;
constexpr int kGrabbableWidth = 80;

} // namespace

QPoint visibleWindowPosition(QPoint stored, QSize size, const QList<QRect>& screens) {
    const QRect titleStrip(stored, QSize(std::max(size.width(), 1), kTitleHeight));
    const int neededWidth = std::min(kGrabbableWidth, titleStrip.width());
    for (const QRect& screen : screens) {
        const QRect seen = screen.intersected(titleStrip);
        if (seen.width() >= neededWidth && seen.height() >= kTitleHeight / 2)
            return stored;
    }
    return screens.isEmpty() ? QPoint(0, 0) : screens.front().topLeft();
}

} // namespace quenfor
