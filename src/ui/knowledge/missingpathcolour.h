#pragma once

class QWidget;

namespace quenfor {

// Shows an entry's text in red while the path it names does not exist, and in the window's own
// colours otherwise, so a wrong folder or file is seen before it lands in a configuration.
void showPathAsMissing(QWidget* entry, bool missing);

} // namespace quenfor
