#pragma once

#include <QString>

namespace quenfor {

// Where a shot goes. The rectangle shot puts "_" between the base name and the number
// (shot_3.bmp); the whole-screen shot joins them directly (shot3.bmp), so the two kinds of
// shots never overwrite each other.
QString rectangleShotFileName(const QString& folder, const QString& baseName, quint16 counter);
QString wholeScreenShotFileName(const QString& folder, const QString& baseName, quint16 counter);

// A German message when the base name cannot be part of a file name on every system the shots
// may be copied to (a separator or a character Windows forbids); empty when it can.
QString shotBaseNameProblem(const QString& baseName);

} // namespace quenfor
