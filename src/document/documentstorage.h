#pragma once

#include "document/documentfile.h"
#include "document/filefamily.h"

#include <QString>

namespace quenfor {

class ConfigDocument;

// Open, save, save as and save a copy on the document, with the path rules of the file chooser.
// Each returns what the window shows: the status text on success, a German message on failure.
struct StorageResult {
    bool ok = false;
    QString status;             // status line on success
    QString error;              // message box text on failure
    QString warning;            // success with a caveat (characters that became "?")
    QString hint;               // opening: a note to show after the status (lines that end in LF alone)
    bool changedOnDisk = false; // saving refused: another program changed the file since it was read
};

// Whether a save may overwrite a change that another program made to the file since it was read.
enum class OthersChanges { Keep, Overwrite };

inline constexpr char16_t kChooseFileFirst[] = u"Zuerst Datei auswählen !";
inline constexpr char16_t kReadingStatus[] = u"Datei lesen...";
// A file whose lines end in LF alone reads as one line; the repair tool splits it.
inline constexpr char16_t kLineFeedsOnlyHint[] =
    u"Hinweis: Die Zeilen enden nur mit LF; \"fragmentierten Unix Text reparieren\" (Werkzeuge) trennt sie.";

// The open question at closing, asked when the document holds lines.
QString closeQuestion(const QString& fileName);

// The folder of the file chooser joined with the typed name; a name that is already an absolute
// path is taken as it is.
QString chooserPath(const QString& folder, const QString& name);

// Where a save goes: the document's file, or beside the program when it has none. A relative
// name is taken relative to the program's folder, as the hint of the file label tells the user.
QString saveTargetFor(const QString& fileName, const QString& programDir);

// Replaces the document by the file's lines; the document keeps its lines when reading fails.
StorageResult openDocument(ConfigDocument& doc, const QString& path, const EncodingChoice& choice);

StorageResult saveDocument(ConfigDocument& doc, const QString& programDir, OthersChanges others = OthersChanges::Keep);
// Saves to the chooser's folder and name; the document then belongs to the new file.
StorageResult saveDocumentAs(ConfigDocument& doc, const QString& folder, const QString& name);
// Writes the same bytes to another file; the document stays with its own file.
StorageResult saveDocumentCopy(const ConfigDocument& doc, const QString& folder, const QString& name);

} // namespace quenfor
