#include "ui/widgets/panelroom.h"

#include "ui/widgets/toolwindow.h"

#include <QEvent>
#include <QLayout>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace quenfor {

namespace {

class PanelRoom : public QObject {
public:
    explicit PanelRoom(QWidget* panel) : QObject(panel), m_panel(panel), m_window(panel->window()) {
        m_heightWithout = m_window->height();
        m_panel->installEventFilter(this);
        m_window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!m_window || (m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
            return false;
        if (watched == m_window && event->type() == QEvent::Resize && m_panel->isHidden()) {
            m_heightWithout = m_window->height();
        } else if (watched == m_panel && event->type() == QEvent::Show) {
            QTimer::singleShot(0, m_window, [window = m_window] {
                if (window && window->isVisible())
                    fitIntoScreen(window);
            });
        } else if (watched == m_panel && event->type() == QEvent::Hide) {
            // Decided now, while the window's minimum still counts the panel: a window held at
            // that minimum grew for the panel; a height the user chose with the panel open stays.
            if (m_window->height() > m_heightWithout && m_window->height() <= m_window->minimumHeight())
                QTimer::singleShot(0, m_window, [this] { shrinkBack(); });
        }
        return false;
    }

private:
    void shrinkBack() {
        if (!m_window || !m_panel->isHidden())
            return;
        // The layouts learn only later that the panel is gone; until then their minimum would
        // hold the window at its larger height.
        for (QWidget* w = m_panel->parentWidget(); w; w = w->parentWidget())
            if (QLayout* layout = w->layout())
                layout->activate();
        m_window->resize(m_window->width(), m_heightWithout);
    }

    QWidget* m_panel;
    QPointer<QWidget> m_window;
    int m_heightWithout = 0;
};

} // namespace

void giveBackRoomWhenHidden(QWidget* panel) {
    new PanelRoom(panel);
}

} // namespace quenfor
