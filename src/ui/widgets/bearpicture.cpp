#include "ui/widgets/bearpicture.h"

#include <QPainter>
#include <QPainterPath>

namespace quenfor {

namespace {

const QColor kFur(150, 100, 55);
const QColor kMuzzle(225, 195, 150);
const QColor kDark(45, 30, 20);

void drawBear(QPainter& p, bool feeding) {
    p.setPen(QPen(kDark, 1.5));
    p.setBrush(kFur);
    p.drawEllipse(QPointF(18, 18), 10, 10); // ears
    p.drawEllipse(QPointF(46, 18), 10, 10);
    p.drawEllipse(QPointF(32, 36), 22, 21); // head
    p.setBrush(kMuzzle);
    p.drawEllipse(QPointF(32, 44), 11, 9);
    p.setBrush(kDark);
    p.drawEllipse(QPointF(24, 31), 2.5, 3); // eyes
    p.drawEllipse(QPointF(40, 31), 2.5, 3);
    p.drawEllipse(QPointF(32, 40), 4, 3); // nose
    if (feeding) {
        p.drawEllipse(QPointF(32, 49), 5, 4); // open mouth
        p.setBrush(QColor(245, 190, 40));     // a pot of honey beside it
        p.drawRoundedRect(QRectF(48, 44, 14, 16), 3, 3);
    } else {
        p.setBrush(Qt::NoBrush);
        QPainterPath smile;
        smile.moveTo(27, 48);
        smile.quadTo(32, 52, 37, 48);
        p.drawPath(smile);
    }
}

void drawBrain(QPainter& p) {
    p.setPen(QPen(QColor(150, 60, 90), 1.5));
    p.setBrush(QColor(240, 170, 190));
    p.drawEllipse(QRectF(8, 14, 26, 34));
    p.drawEllipse(QRectF(30, 14, 26, 34));
    p.setBrush(Qt::NoBrush);
    for (int y = 22; y <= 40; y += 9) {
        p.drawArc(QRectF(12, y, 14, 8), 0, 180 * 16);
        p.drawArc(QRectF(38, y, 14, 8), 0, 180 * 16);
    }
}

} // namespace

QPixmap bearPicture(BearPose pose, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 64.0, size / 64.0);
    if (pose == BearPose::Brain)
        drawBrain(p);
    else
        drawBear(p, pose == BearPose::Feeding);
    return pixmap;
}

} // namespace quenfor
