#include "ui/desktools/screencapture.h"

#include <QScreen>

namespace quenfor {

QPixmap DesktopPicture::part(const QRect& rect) const {
    const qreal ratio = pixmap.devicePixelRatio();
    const QRect local = rect.translated(-area.topLeft());
    QPixmap piece = pixmap.copy(QRectF(QPointF(local.topLeft()) * ratio, QSizeF(local.size()) * ratio).toRect());
    piece.setDevicePixelRatio(ratio);
    return piece;
}

DesktopPicture grabDesktop(QScreen* screen) {
    if (!screen)
        return {};
    DesktopPicture picture{screen->grabWindow(0), {}};
    if (picture.isNull())
        return {};
    // Some platforms give the desktop of all monitors, others only this screen.
    const QSize size = picture.pixmap.deviceIndependentSize().toSize();
    const QRect desktop = screen->virtualGeometry();
    picture.area = size == desktop.size() ? desktop : QRect(screen->geometry().topLeft(), size);
    return picture;
}

} // namespace quenfor
