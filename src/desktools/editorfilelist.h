#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

// The files of a folder that the open box lists for its ";"-separated pattern, read as Windows
// reads a pattern ("*.*" is every file, letters match in any case), sorted by name without
// regard to case. Hidden files and links stay out, as in every file list of the program.
QStringList editorFilesIn(const QString& folder, const QString& pattern);

} // namespace quenfor
