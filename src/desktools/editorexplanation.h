#pragma once

#include "document/documentfile.h"

#include <QString>

namespace quenfor {

// The text editor explains the line under the caret with the explanation panel's fixed texts for
// mapkeys, blank lines, favourites and comments; any other line is looked up in config_opts.txt
// beside the program, and only its first entry is shown, under a heading of the editor's own.
struct EditorExplanation {
    QString text;                      // lines separated by "\n"
    bool knowledgeBaseMissing = false; // the window then shows kEditorKnowledgeBaseMissing
    QString error;                     // a knowledge base that exists but cannot be read
};

// config_opts.txt in the folder of the files beside the program.
QString editorKnowledgeBasePath();

EditorExplanation explainEditorLine(const QString& line, const QString& knowledgeBasePath,
                                    const EncodingChoice& choice = {});

inline constexpr char16_t kEditorExplanationHeading[] = u"*** Erklärung des Begriffes: ***";
inline constexpr char16_t kEditorKnowledgeBaseMissing[] =
    u"Konfigurations-Datei nicht gefunden ! Kopieren Sie die Dateien config_opts.txt in das selbe Verzeichnis wie "
    u"skribb.exe.";

} // namespace quenfor
