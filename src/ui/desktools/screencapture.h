#pragma once

#include <QPixmap>
#include <QRect>

class QScreen;

namespace quenfor {

// A picture of the screen as the Print key takes it, and the desktop area it shows: on X11 the
// whole desktop over all monitors, elsewhere the given screen. Null when the platform cannot take
// pictures of the screen.
struct DesktopPicture {
    QPixmap pixmap;
    QRect area; // desktop coordinates

    bool isNull() const { return pixmap.isNull(); }
    // The part of the picture that shows `rect` (desktop coordinates, inside `area`).
    QPixmap part(const QRect& rect) const;
};

DesktopPicture grabDesktop(QScreen* screen);

} // namespace quenfor
