#pragma once

class QWidget;

namespace quenfor {

// A panel that opens inside a window takes its room from the window's other contents; should the
// window still have to grow for it, it grows no further than the screen, and when the panel hides
// again the window goes back to the height it had before. Call it once the panel sits in its
// window.
void giveBackRoomWhenHidden(QWidget* panel);

} // namespace quenfor
