#pragma once

#include <QByteArray>
#include <QString>

namespace quenfor {

// The complete bytes of a file, line ends and NUL bytes included. Empty when the path is not an
// existing, readable file.
QByteArray readWholeFile(const QString& path);

} // namespace quenfor
