#pragma once

#include <QByteArray>
#include <QString>

namespace quenfor {

enum class FileOpen;

// The complete bytes of a file, line ends and NUL bytes included. Empty when the path is not an
// existing, readable regular file (a pipe or device is never read); outcome, when given, says why.
QByteArray readWholeFile(const QString& path, FileOpen* outcome = nullptr);

} // namespace quenfor
