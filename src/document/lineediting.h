#pragma once

#include <QString>

namespace quenfor {

class ConfigDocument;
class Clipboard;

// The single-line operations of the editor. Each returns the text the status line shows
// afterwards (empty: the status line is left alone).

// Places the entry line: above the marked line when that line is selected, into it when it is
// empty (a deleted line is a gap to be filled), at the end otherwise.
QString insertEntryLine(ConfigDocument& doc, const QString& entry);

// Adds the entry line at the end; the new last line becomes the marked and only selected one.
QString appendEntryLine(ConfigDocument& doc, const QString& entry);

// Enter in the entry line: the selected lines are emptied, then the entry line is placed, so
// a marked line is replaced in place. An empty entry line does nothing.
QString enterEntryLine(ConfigDocument& doc, const QString& entry);

// Places an empty comment "! " by the insert rule.
QString insertCommentLine(ConfigDocument& doc);

// Empties every selected line. Lines are never removed here, so line numbers stay valid until
// the blank-line tool runs.
QString deleteSelectedLines(ConfigDocument& doc);

// Removes every line (the window asks kDeleteAllQuestion first).
void deleteAllLines(ConfigDocument& doc);
inline constexpr char16_t kDeleteAllQuestion[] = u"Soll die die kompletten Einträge gelöscht werden ?";

// The marked line changes places with the line above; then it alone is selected and stays marked.
void moveMarkedLineUp(ConfigDocument& doc);
// The marked line goes to the top, the lines above it move down by one in their order.
void moveMarkedLineToTop(ConfigDocument& doc);

// Every selected line followed by CR LF goes to the clipboard.
QString copySelectedLines(ConfigDocument& doc, Clipboard& clipboard);
// Copy, then empty the selected lines.
QString cutSelectedLines(ConfigDocument& doc, Clipboard& clipboard);
// The clipboard text is split by the reader's line rule and appended at the end.
QString pasteLines(ConfigDocument& doc, const Clipboard& clipboard);

} // namespace quenfor
