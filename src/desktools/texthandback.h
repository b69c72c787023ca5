#pragma once

#include "document/documentfile.h"

#include <QString>
#include <QStringList>

namespace quenfor {

// Closing the text editor hands its text to the main window's document: written to "quen.tmp"
// in the temporary folder, read back line by line with the program's reader, the file deleted.

struct HandBack {
    QStringList lines;
    // German, for a message box; empty when the round trip through the file worked. When the file
    // cannot be written or read, the lines come straight from the text, so nothing is lost.
    QString problem;
};

HandBack handBackThroughFile(const QString& text, const QString& tempFolder);

// "Text " + the editor's file name + " in Liste übernehmen ?"
QString handBackQuestion(const QString& fileName);

// The temporary folder of the main window's settings.
QString editorTempFolder();

// The copy of the text that a translation keeps while it replaces the text line by line, so that
// not even a crash in between loses it: "skribb.tmp" in the temporary folder.
QString translationBackupPath(const QString& tempFolder);
WriteResult writeTranslationBackup(const QString& path, const QString& text);

inline constexpr char16_t kHandBackFileName[] = u"quen.tmp";
inline constexpr char16_t kTranslationBackupName[] = u"skribb.tmp";
inline constexpr char16_t kTextTakenOver[] = u"Text aus Texteditor übernommen";

} // namespace quenfor
