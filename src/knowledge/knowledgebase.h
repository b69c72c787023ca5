#pragma once

#include "document/documentfile.h"

#include <QString>
#include <QStringList>

namespace quenfor {

// The option knowledge base: a plain text file beside the program in which every line that
// begins with an option name starts that option's description.

// The option name of an entry line: runs of blanks collapsed to one, cut before the first blank.
QString optionNameOf(QStringView entryLine);

struct KnowledgeLookup {
    bool fileFound = false;
    QString error;             // German; set when the file exists but cannot be read
    QList<QStringList> blocks; // one block of six lines per matching line, in file order
};

// Every line that begins with `optionName` (exact, case-sensitive prefix) yields its block: the
// line and the five after it. Where the file ends inside a block, its last line repeats until
// the block is full; the line after a block is passed over without being tested. Both are how
// the knowledge bases have always been read, and the shipped files are written for it.
KnowledgeLookup lookupKnowledgeBase(const QString& path, QStringView optionName, const EncodingChoice& choice = {});

// Appends the user's explanation as a record: the entry line, a lone CR, the text (its line
// breaks as CR LF), a lone CR, "***" and CR LF. The file keeps its encoding and is replaced
// atomically, so a failing append never leaves half a record; a missing file is created.
struct AppendResult {
    bool ok = false;
    QString error;
};
AppendResult appendKnowledgeRecord(const QString& path, const QString& entryLine, const QString& explanation,
                                   const EncodingChoice& choice = {});

inline constexpr char16_t kKnowledgeBaseAdded[] = u"Erklärung wurde zum Eintrag hinzugefügt";

} // namespace quenfor
