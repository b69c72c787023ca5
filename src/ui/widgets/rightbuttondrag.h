#pragma once

class QWidget;

namespace quenfor {

// Lets the user move a box that floats over its window by pressing the right mouse button on it
// (on its frame, captions or any child that leaves the right button alone) and dragging. The box
// stays inside its parent.
void makeDraggableWithRightButton(QWidget* box);

} // namespace quenfor
