#pragma once

#include "document/documentfile.h"

#include <QString>

namespace quenfor {

// The files of the text editor: opening a whole file into the text box, saving under the
// current name ("Skribb.txt" in the program folder when there is none) and saving as.
// A text is the box's content with its lines separated by CR LF.

inline constexpr char16_t kEditorFailure[] = u"Hoppla, es ist ein Fehler aufgetreten !";
inline constexpr char16_t kEditorNeedsName[] = u"Bitte zuerst einen Namen vergeben !";
inline constexpr char16_t kEditorChooseFileFirst[] = u"Zuerst Datei auswählen !";
inline constexpr char16_t kEditorDriveMissing[] = u"Laufwerk nicht verfügbar !";
// Larger files would make the text box crawl; the main list takes them.
inline constexpr qint64 kMaxEditorFileBytes = 64LL * 1024 * 1024;

struct EditorFile {
    bool ok = false;
    QString error; // German, for a message box
    QString text;  // as in the file, line ends included
    TextEncoding encoding;
};

// Reads the whole file. A file with NUL bytes is binary: the text box would write it back
// changed, so it is refused with a message.
EditorFile readEditorFile(const QString& path, const EncodingChoice& choice);

// The program folder + "Skribb.txt".
QString defaultEditorFile();

struct EditorSave {
    enum class Outcome { Saved, NeedsName, Failed };
    Outcome outcome = Outcome::Failed;
    QString path;    // the name saved under or tried; the window's Label1 shows it
    QString status;  // the status line's text after saving
    QString message; // German, for a message box: why nothing was saved
    QString warning; // saved, but characters the encoding cannot hold became "?"
};

// Saves under `currentName`, or the default file when it is empty, but only into a file that
// exists already: saving never creates a file, that is what "save as" is for.
EditorSave saveEditorText(const QString& currentName, const QString& text, const TextEncoding& encoding);

// Saves into folder + name, creating or replacing the file.
EditorSave saveEditorTextAs(const QString& folder, const QString& name, const QString& text,
                            const TextEncoding& encoding);

// What save-as asks before it replaces a file.
QString replaceFileQuestion(const QString& path);

} // namespace quenfor
