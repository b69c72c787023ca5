#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

class ConfigDocument;

// How a path option's value is checked before the user is warned.
enum class ExistenceTest { None, Folder, File };

// One of the 23 options every installation must set for itself, as the path options window
// shows it: the option, its text box and insert button, the default and the full help text.
struct PathOption {
    QString option;  // pro_format_dir
    QString textBox; // TextFormat
    QString button;  // cmdformat
    QString defaultValue;
    ExistenceTest test = ExistenceTest::None;
    QString help; // starts with the option's usual first sentence
};

// The 23 options in the window's order.
const QList<PathOption>& pathOptions();
// The position of an option in pathOptions(), or -1.
int pathOptionIndex(const QString& option);

// "alle einfügen" appends the lines in this order: indexes into pathOptions().
const QList<int>& insertAllOrder();

// The values live in the store of application "quenfor", section "Optionen", each under its
// text box name + ".Text".
inline constexpr char16_t kPathOptionsApplication[] = u"quenfor";
inline constexpr char16_t kPathOptionsSection[] = u"Optionen";
QString settingsKey(const PathOption& option);

// The 23 values as stored, in the order of pathOptions(); the default where none is stored.
QStringList loadPathValues();
// Stores one value; false when the store could not be written.
bool storePathValue(const PathOption& option, const QString& value);
// Stores all 23 (in the order of pathOptions()); false when any could not be written.
bool storePathValues(const QStringList& values);
// Where the values are stored, for the message when storing fails.
QString pathStoreLocation();

// The configuration line: option, one blank, the value as typed (blanks are not quoted).
QString pathOptionLine(const PathOption& option, const QString& value);

// False only for a value whose folder or file is missing; options without a test always pass.
bool pathValueExists(const PathOption& option, const QString& value);
// "Verzeichnis <value> existiert nicht !" or "Datei <value> existiert nicht !"; empty when the
// value passes its test.
QString existenceWarning(const PathOption& option, const QString& value);

struct PathInsertResult {
    QString line;    // the line appended to the document
    QString warning; // the existence warning, empty when there is none
    bool stored = false;
};

// One insert button: appends the line, stores the value, and tests it. The line stays in the
// document whatever the test says.
PathInsertResult insertPathOption(ConfigDocument& doc, int index, const QString& value);

struct PathInsertAllResult {
    QStringList lines; // in the order they were appended
    bool stored = false;
};

// "alle einfügen": appends all 23 lines in insertAllOrder() without testing, and stores every value.
// `values` holds the 23 values in the order of pathOptions().
PathInsertAllResult insertAllPathOptions(ConfigDocument& doc, const QStringList& values);

// The window's own texts.
inline constexpr char16_t kPathOptionsNote[] =
    u"nicht existierende Dateien oder Verzeichnisse werden rot dargestellt.   Einfügen der entspechenden config- "
    u"Option mit \">>\".";
inline constexpr char16_t kJokeText[] = u"just a joke ;-)";
// Shown when the settings store refuses a value; %1 is where the store lives.
inline constexpr char16_t kPathStoreFailed[] =
    u"Die Pfadangaben konnten nicht gespeichert werden. Prüfen Sie die Schreibrechte für %1.";

} // namespace quenfor
