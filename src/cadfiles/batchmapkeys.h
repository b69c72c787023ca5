#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace quenfor {

// The CAD system reads mapkey lines of at most this many characters; longer mapkeys are broken
// into "mapkey(continued) " lines, each line but the last ending in "\".
inline constexpr qsizetype kMaxMapkeyLineLength = 98;

// Stand-ins in a template's actions, replaced for every file.
inline constexpr char16_t kFilePlaceholder[] = u"%DATEI%";    // bracket.prt
inline constexpr char16_t kPathPlaceholder[] = u"%PFAD%";     // the full path, native separators
inline constexpr char16_t kFolderPlaceholder[] = u"%ORDNER%"; // the folder, native separators

// What the placeholders stand for with one file.
struct PlaceholderValues {
    QString file;   // %DATEI%
    QString path;   // %PFAD%
    QString folder; // %ORDNER%
};

// Replaces every placeholder of action in one pass from left to right, so that a name or folder
// that itself holds a placeholder's text is inserted as it is and never expanded again.
QString substitutePlaceholders(QStringView action, const PlaceholderValues& values);

// One kind of batch run: what the mapkey of each file does, as trail actions, each ending in ";".
struct MapkeyTemplate {
    QString id;          // fixed, names the template in the settings
    QString name;        // shown in the choice and used in every mapkey's label
    QStringList actions; // "~ Command `ProCmdModelOpen` ;" ...

    bool operator==(const MapkeyTemplate&) const = default;
};

// What the user sets in the parameter dialog.
struct BatchParameters {
    QString keyPrefix;
    int firstNumber = 1;
    QString collectorKey; // empty: no mapkey that runs all the others
    QList<MapkeyTemplate> templates;

    bool operator==(const BatchParameters&) const = default;
};

inline constexpr int kMaxFirstNumber = 99999;

// The three templates: open; open, regenerate, save and close; open, save and close.
QList<MapkeyTemplate> defaultMapkeyTemplates();
BatchParameters defaultBatchParameters();
// The default actions of a template id; empty for an unknown id.
QStringList defaultActions(const QString& id);

// Checks the parameters before any mapkey is made; returns a German message, empty when fine.
QString checkKeyPrefix(const QString& prefix);
QString checkCollectorKey(const QString& key);
QString checkActions(const QString& templateName, const QStringList& actions);
QString checkBatchParameters(const BatchParameters& parameters);

// The keys of count files: prefix + number, the numbers padded to one width so that no key is the
// beginning of another ("q1" would fire before "q10" could be typed).
QStringList batchKeys(const QString& prefix, int firstNumber, int count);

// Breaks one logical mapkey ("mapkey KEY ...;...;") after its ";" (outside `...` quotes) into
// lines of at most maxLength characters. Empty when a single action is too long for a line.
QStringList wrapMapkey(const QString& mapkey, qsizetype maxLength = kMaxMapkeyLineLength);

struct BatchResult {
    QStringList lines;    // the file's lines: a comment, the mapkeys, the collector
    QStringList keys;     // the key of each file that got a mapkey, in order
    QStringList files;    // those files
    QStringList problems; // German: parameters refused, or a file left out and why
    bool parametersRefused = false;

    int mapkeyCount() const { return int(keys.size()); }
};

// A mapkey for every named file of folder, by the template. A file whose name cannot stand in a
// mapkey (a ";", "`" or control character, or too long for a line) is left out with a problem;
// the others keep their order and their numbers close up.
BatchResult generateBatchMapkeys(const QString& folder, const QStringList& fileNames, const MapkeyTemplate& tmpl,
                                 const BatchParameters& parameters);

} // namespace quenfor
