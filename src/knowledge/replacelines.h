#pragma once

#include <QString>

namespace quenfor {

class ConfigDocument;

// The first occurrence of find in line, found without regard to case, replaced by replacement
// exactly as typed; a line without it comes back unchanged. An empty find text stands at the
// start of every line that is not empty, so the replacement is put in front of such a line.
QString replaceFirstInLine(const QString& line, const QString& find, const QString& replacement);

// True when replaceFirstInLine changes something: the line holds find (an empty find text: the
// line is not empty).
bool lineHoldsFindText(const QString& line, const QString& find);

// Replaces in every line of the document, from the first to the last, and returns how many lines
// held the find text. Only lines that change are written, so the mark and selection stay.
int replaceInDocument(ConfigDocument& document, const QString& find, const QString& replacement);

// The word shown beside the count after a run.
inline constexpr char16_t kReplacedWord[] = u"ersetzt";

// The two texts of the replace window, stored under "quenfor", section "Optionen".
struct ReplaceTexts {
    QString find;
    QString replacement;
};

ReplaceTexts loadReplaceTexts();
// Returns false when the store could not be written.
bool storeReplaceTexts(const ReplaceTexts& texts);

} // namespace quenfor
