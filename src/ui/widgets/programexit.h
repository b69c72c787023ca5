#pragma once

namespace quenfor {

// Ends the whole program the way the menu entry "EXIT" does: every window is asked to close, so
// each stores its settings and the main window still asks whether to save its document. A window
// that refuses (the user cancelled) keeps the program running.
void endWholeProgram();

// Closes every visible tool window first, so one that hands lines back still finds the main
// window's document. False when a window refused to close.
bool closeToolWindows();

} // namespace quenfor
