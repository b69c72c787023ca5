#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

class ConfigDocument;

// The whole-document clean-up tools. The list versions are pure and serve the command-line tool
// and other generators; the document versions rebuild the document (mark and selection go, the
// window then shows "Nr.") and return the status text.

// Drops lines that hold only blanks and collapses every run of blanks inside the others, values
// included, to a single blank.
QStringList removeBlankLines(const QStringList& lines);
QString removeBlankLines(ConfigDocument& doc);

// Keeps the first of exactly equal lines (case-sensitive, blanks count). Mapkey lines and empty
// lines are never removed, since repeating them is meaningful.
QStringList removeDuplicateLines(QStringList lines);
QString removeDuplicateLines(ConfigDocument& doc);
// The status line while duplicates are removed, also as the last step of the sort by category.
inline constexpr char16_t kRemovingDuplicatesStatus[] = u"lösche doppelte Einträge...";

// Sorts the option lines ascending, case-insensitively, in the locale's collation; mapkey,
// comment and browser_favorite lines follow in their former order. The line that sorts first is
// dropped from the result: with blank lines present that is one blank line, otherwise the first
// option. `dropped` receives it.
QStringList sortLinesAlphabetically(const QStringList& lines, const QLocale& locale,
                                    std::optional<QString>* dropped = nullptr);
QString sortLinesAlphabetically(ConfigDocument& doc, const QLocale& locale = QLocale());

// Lower-cases every line but comments and mapkey lines (heads and continuations).
QStringList lowerCaseLines(const QStringList& lines);
void lowerCaseLines(ConfigDocument& doc);

// Rebuilds lines whose ends were lost: the file text, up to the end of its first `lineCount`
// lines, with every LF turned into CR, split again by the reader's rule. An LF-only file thus
// gets its lines back; a CR LF file gets an empty line after each line, which is why the window
// warns before running it. The text is reworked in place: hand it over with std::move where it
// is not needed any more, so a huge file is not held twice.
QStringList repairFragmentedText(QString fileText, qsizetype lineCount);

inline constexpr char16_t kRepairWarning[] =
    u"Bitte wenden Sie diese Funktion nur auf einen Text an der unleserlich ist oder ohne Zeilenumbrüche erscheint ! "
    u"Der Vorgang kann unter Umständen eine Weile dauern. Ansonsten sollte man von dieser Funktion besser die Finger "
    u"lassen.";
QString repairSaveQuestion(const QString& fileName);

} // namespace quenfor
