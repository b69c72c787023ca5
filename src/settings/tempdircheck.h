#pragma once

#include <QString>

namespace quenfor {

struct TempDirCheck {
    bool ok = false;
    QString folder;      // the text as typed, ending in a separator
    QString message;     // why the folder cannot be used; empty when ok
    QString displayText; // "temp Dir: " and the folder when ok
};

// Checks the folder the user typed for the temporary files: it must exist and take a test file
// "quenfor.tmp", which is deleted again. A usable folder is stored as the temporary folder
// setting. An empty text names no folder.
TempDirCheck checkTempDir(const QString& text);

enum class TempDirTextState { Exists, Missing };

// For colouring the entry while the user types: whether the text names an existing folder.
TempDirTextState tempDirTextState(const QString& text);

} // namespace quenfor
