#pragma once

#include <QPointer>
#include <QWidget>

namespace quenfor {

// Opens a tool window the way every menu entry does: an open window comes to the front, otherwise
// a new one is made (deleted again when closed) and shown.
template <typename Window, typename Make> Window* showToolWindow(QPointer<Window>& slot, Make&& make) {
    if (!slot) {
        slot = make();
        slot->setAttribute(Qt::WA_DeleteOnClose);
    }
    slot->show();
    slot->raise();
    slot->activateWindow();
    return slot;
}

} // namespace quenfor
