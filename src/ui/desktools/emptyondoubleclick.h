#pragma once

class QLineEdit;

namespace quenfor {

// A double-click into the line empties it, as the desk tools' status and message lines do. The
// line keeps working normally otherwise.
void emptyOnDoubleClick(QLineEdit* line);

} // namespace quenfor
