#pragma once

#include <QRect>
#include <QString>

namespace quenfor {

// The screen rectangle of a shot from the texts of X, Y, BREITE and HOEHE. A comma is read as
// the decimal comma and the value rounded to the nearest whole pixel (12,5 gives 13); an empty
// field, a second comma, a size of 0 or an absurdly large value is refused with a German message
// naming the field.
struct ShotRectangle {
    QRect rect;    // valid when error is empty
    QString error; // German, for the status line
};

ShotRectangle parseShotRectangle(const QString& x, const QString& y, const QString& width, const QString& height);

// The part of the wanted rectangle that lies on the screen, and a German note for the status line
// when the shot had to be cut (empty when the rectangle fits) or lies wholly off the screen
// (then `rect` is empty).
struct VisibleShot {
    QRect rect;
    QString note;
};

VisibleShot visiblePartOfShot(const QRect& wanted, const QRect& screen);

} // namespace quenfor
