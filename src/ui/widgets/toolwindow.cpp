#include "ui/widgets/toolwindow.h"

#include <QGuiApplication>
#include <QScreen>

namespace quenfor {

void fitIntoScreen(QWidget* window) {
    const QScreen* screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // Room for the title bar and the window frame, which the size does not count.
    constexpr int kFrame = 40;
    fitIntoArea(window, screen->availableGeometry().size() - QSize(kFrame / 2, kFrame));
}

void fitIntoArea(QWidget* window, QSize area) {
    window->resize(window->size().boundedTo(area).expandedTo(window->minimumSizeHint()));
}

} // namespace quenfor
