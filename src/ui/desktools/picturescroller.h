#pragma once

#include <QObject>
#include <QPoint>

class QScrollArea;
class QWidget;

namespace quenfor {

// Moves a picture in its scroll area: the mouse wheel scrolls it from anywhere over the watched
// widgets (the picture itself and the window around it), and the left mouse button drags it.
class PictureScroller : public QObject {
public:
    explicit PictureScroller(QScrollArea* area);

    // Wheel turns over this widget that nothing else takes scroll the picture.
    void watchWheel(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool scroll(QEvent* event);
    bool drag(QEvent* event);

    QScrollArea* m_area;
    bool m_dragging = false;
    QPoint m_grabbedAt;   // global mouse position when the button went down
    QPoint m_startValues; // the scroll bars' values then
};

} // namespace quenfor
