#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace quenfor {

class ConfigDocument;

// The first line of a mapkey starts with exactly "mapkey " (blank included), so the
// "mapkey(continued)" lines never count. Case-sensitive, no trimming.
bool isMapkeyFirstLine(QStringView line);

// The key name of a first line: the text from the eighth character up to the next blank. Only the
// characters up to the third-last are looked at, so a line whose name is not followed by a blank
// before its last two characters has no name (nullopt), and neither has any other line. Two
// blanks after "mapkey" give the empty name.
std::optional<QString> mapkeyName(QStringView line);

// The names of the mapkey list window: one per first line that has one, in document order.
QStringList mapkeyNames(const QStringList& lines);

// What a click on a name looks for in the document. The blank after the name keeps "a" from
// finding "mapkey ab"; every listed name is followed by a blank in its own line, so its own line
// always matches.
QString mapkeySearchText(const QString& name);

// The entries of the duplicate window: every first line that occurs at least twice (exactly
// equal, case-sensitive), once, in the order of its first occurrence. Continuation lines are not
// compared. Linear; the same result as comparing every pair of first lines and then removing the
// repeated entries.
QStringList duplicateMapkeyLines(const QStringList& lines);

// How many leading characters of an entry decide which document lines a mark takes.
inline constexpr qsizetype kMarkKeyLength = 18;

// The indexes of every line that begins with the first 18 characters (the whole entry when
// shorter) of any of the entries, ascending, each once.
QList<int> linesMatchingEntries(const QStringList& lines, const QStringList& entries);

// Adds those lines to the document's selection with a single selection notification and asks the
// view to show the first of them; the selection made before stays. Returns how many lines match.
int markDuplicateLines(ConfigDocument& doc, const QStringList& entries);

inline constexpr char16_t kSearchingDuplicateMapkeysStatus[] = u"suche doppelte Mapkeys...";
inline constexpr char16_t kNoDuplicateMapkeysCaption[] = u"keine doppelten Mapkeys vorhanden !";

// Hover hints of the main window's buttons that open the two mapkey windows.
inline constexpr char16_t kDuplicateMapkeysHint[] = u"Ruft das Formular zum Suchen und Löschen doppelter Mapkeys auf";
inline constexpr char16_t kListMapkeysHint[] = u"Ruft eine Liste aller vorhandenen Mapkeys auf";

} // namespace quenfor
