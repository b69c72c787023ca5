#include "ui/desktools/picturescroller.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

namespace quenfor {

PictureScroller::PictureScroller(QScrollArea* area) : QObject(area), m_area(area) {
    area->viewport()->installEventFilter(this);
    area->viewport()->setCursor(Qt::OpenHandCursor);
}

void PictureScroller::watchWheel(QWidget* widget) {
    widget->installEventFilter(this);
}

bool PictureScroller::eventFilter(QObject* watched, QEvent* event) {
    // Only wheel and mouse events touch the area: the others also come while the area is being
    // destroyed, when it must not be asked for anything.
    switch (event->type()) {
    case QEvent::Wheel:
        return scroll(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return watched == m_area->viewport() && drag(event);
    default:
        return false;
    }
}

bool PictureScroller::scroll(QEvent* event) {
    const auto* wheel = static_cast<QWheelEvent*>(event);
    const QPoint delta = wheel->angleDelta();
    // A sideways turn (tilting wheel, touchpad) moves sideways; everything else up and down.
    QScrollBar* bar = qAbs(delta.x()) > qAbs(delta.y()) ? m_area->horizontalScrollBar() : m_area->verticalScrollBar();
    // The scroll bar knows the system's lines per wheel step.
    QCoreApplication::sendEvent(bar, event);
    return true;
}

bool PictureScroller::drag(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            return false;
        m_dragging = true;
        m_grabbedAt = mouse->globalPosition().toPoint();
        m_startValues = {m_area->horizontalScrollBar()->value(), m_area->verticalScrollBar()->value()};
        m_area->viewport()->setCursor(Qt::ClosedHandCursor);
        return true;
    }
    case QEvent::MouseMove: {
        if (!m_dragging)
            return false;
        const QPoint moved = static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - m_grabbedAt;
        m_area->horizontalScrollBar()->setValue(m_startValues.x() - moved.x());
        m_area->verticalScrollBar()->setValue(m_startValues.y() - moved.y());
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (!m_dragging || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        m_dragging = false;
        m_area->viewport()->setCursor(Qt::OpenHandCursor);
        return true;
    default:
        return false;
    }
}

} // namespace quenfor
