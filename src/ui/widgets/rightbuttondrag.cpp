#include "ui/widgets/rightbuttondrag.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>

namespace quenfor {

namespace {

class RightButtonDrag : public QObject {
public:
    explicit RightButtonDrag(QWidget* box) : QObject(box), m_box(box) { box->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != m_box)
            return false;
        switch (event->type()) {
        case QEvent::MouseButtonPress: {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() != Qt::RightButton)
                return false;
            m_grab = mouse->globalPosition().toPoint() - m_box->pos();
            m_dragging = true;
            m_box->setCursor(Qt::SizeAllCursor);
            return true;
        }
        case QEvent::MouseMove: {
            if (!m_dragging)
                return false;
            moveTo(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - m_grab);
            return true;
        }
        case QEvent::MouseButtonRelease:
            if (!m_dragging || static_cast<QMouseEvent*>(event)->button() != Qt::RightButton)
                return false;
            m_dragging = false;
            m_box->unsetCursor();
            return true;
        case QEvent::ContextMenu:
            return m_dragging;
        default:
            return false;
        }
    }

private:
    void moveTo(QPoint target) {
        if (const QWidget* parent = m_box->parentWidget()) {
            target.setX(std::clamp(target.x(), 0, std::max(0, parent->width() - m_box->width())));
            target.setY(std::clamp(target.y(), 0, std::max(0, parent->height() - m_box->height())));
        }
        m_box->move(target);
    }

    QWidget* m_box;
    QPoint m_grab;
    bool m_dragging = false;
};

} // namespace

void makeDraggableWithRightButton(QWidget* box) {
    new RightButtonDrag(box);
}

} // namespace quenfor
