#pragma once

#include <QPointer>
#include <QWidget>

namespace quenfor {

// Keeps a window inside the screen it opens on (a 1366×768 laptop included): a window made
// larger than the screen's free area is shrunk to it, as far as its layout allows.
void fitIntoScreen(QWidget* window);
// The same for a given free area: the size is bounded by it, but never below the layout's minimum.
void fitIntoArea(QWidget* window, QSize area);

// Opens a tool window the way every menu entry does: an open window comes to the front, otherwise
// a new one is made (deleted again when closed), fitted into the screen and shown.
template <typename Window, typename Make> Window* showToolWindow(QPointer<Window>& slot, Make&& make) {
    if (!slot) {
        slot = make();
        slot->setAttribute(Qt::WA_DeleteOnClose);
        fitIntoScreen(slot);
    }
    slot->show();
    slot->raise();
    slot->activateWindow();
    return slot;
}

} // namespace quenfor
