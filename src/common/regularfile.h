#pragma once

#include <QString>

class QFile;

namespace quenfor {

// What came of opening a file the user named.
enum class FileOpen {
    Opened,
    Missing,
    Folder,
    NotRegular, // a pipe, socket or device: reading it could wait forever or never end
    Unreadable,
};

// Opens path for reading only when it names a regular file (a link to one counts). Anything else
// is refused before it is opened for reading, and the open itself does not wait, so a pipe
// without a writer cannot hang the caller; the type is checked again on the opened handle.
FileOpen openRegularFile(QFile& file, const QString& path);

// The same test without opening: true for a regular file or a link to one.
bool isRegularFile(const QString& path);
// What a test without opening says: Opened stands for "a regular file".
FileOpen regularFileStatus(const QString& path);

// German: why path was not opened; empty for Opened.
QString fileOpenRefusalText(FileOpen outcome, const QString& path);

} // namespace quenfor
