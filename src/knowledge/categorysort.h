#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quenfor {

class CategoryTable;

// "nach Kategorien sortieren": the option lines grouped by subject. Each of the 31 categories
// becomes a section under a comment header, in table order; within it, lines follow the order of
// the options in the category's list, lines of one option in document order. Then a last header
// and the whole document again, and the duplicate removal keeps only the first copy of every
// line: the last section holds exactly what no category claims (mapkeys, favourites, comments,
// blank lines, unknown options) in document order.
// `onCategory` is told each category index (1..31) as its section is written, so a window can show
// which one is being processed.
QStringList sortByCategory(const QStringList& lines, const CategoryTable& table,
                           const std::function<void(int index)>& onCategory = {});

// The header of category `index` (1..31).
QString categoryHeader(int index);

// True for files the sort refuses: search path files ("search.pro", "SEARCH.PRO" at the end of the
// name), and drawing setup and plotter files, for which the window offers no sort at all.
bool categorySortRefuses(const QString& fileName);

inline constexpr char16_t kCategorySortLastHeader[] = u"! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------";
// lbl_kathi while a category's section is written: "Kategorie " and its name.
QString categoryProgressText(int index);

inline constexpr char16_t kCategorySortQuestion[] = u"Wollen Sie nun alle Einträge nach Themen sortieren ?";
inline constexpr char16_t kCategorySortRefusedButton[] =
    u"Diese Funktion ist nur für config.pro und config.sup Dateien nutzbar ! (Mal im Ernst: was erwartest Du denn, "
    u"was da passiert ?!... ehrlich)";
inline constexpr char16_t kCategorySortRefusedMenu[] =
    u"Diese Funktion ist nur für config.pro und config.sup Dateien nutzbar !";
inline constexpr char16_t kPickerSourceMissing[] =
    u"Kopieren Sie bitte alle Dateien aus der Zip-Datei in ein Verzeichnis Ihrer Wahl und starten Sie dort quenfor !";

} // namespace quenfor
