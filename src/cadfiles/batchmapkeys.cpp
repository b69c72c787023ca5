#include "cadfiles/batchmapkeys.h"

#include "common/pathsplit.h"

#include <QDir>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kContinued = u"mapkey(continued) "_s;
const QString kLabel = u"@MAPKEY_LABEL"_s;
constexpr qsizetype kMaxKeyLength = 20;

const QStringList kOpenActions = {
    u"~ Command `ProCmdModelOpen` ;"_s,
    u"~ Trail `UI Desktop` `UI Desktop` `DLG_PREVIEW_POST` `file_open`;"_s,
    u"~ Update `file_open` `Inputname` `%DATEI%`;"_s,
    u"~ Command `ProFileSelPushOpen@context_dlg_open_cmd`;"_s,
};

const QStringList kSaveAndCloseActions = {
    u"~ Command `ProCmdModelSave` ;"_s,
    u"~ Activate `file_saveas` `OK`;"_s,
    u"~ Command `ProCmdWinCloseGroup` ;"_s,
};

// A character that would end an action, a quoted text or the line early.
QChar breakingCharacter(const QString& text) {
    for (const QChar c : text) {
        if (c == u';' || c == u'`' || c.category() == QChar::Other_Control)
            return c;
    }
    return {};
}

QString shownCharacter(QChar c) {
    if (c.category() == QChar::Other_Control)
        return u"Steuerzeichen %1"_s.arg(c.unicode());
    return u"\u201E"_s + c + u"\u201C"_s;
}

QString quoted(const QString& text) {
    return u"\u201E"_s + text + u"\u201C"_s;
}

QString checkKey(const QString& key, const QString& what) {
    if (key.size() > kMaxKeyLength)
        return u"%1 %2 ist zu lang: höchstens %3 Zeichen."_s.arg(what, quoted(key)).arg(kMaxKeyLength);
    for (const QChar c : key) {
        // Keys are typed on the keyboard in the graphics window: plain ASCII without the characters
        // that start, quote or end an action.
        if (c.unicode() <= 0x20 || c.unicode() >= 0x7f || QStringView(u";`%\\@~!").contains(c))
            return u"%1 %2 enthält %3; erlaubt sind Buchstaben ohne Umlaute, Ziffern und Zeichen wie $ _ - ."_s.arg(
                what, quoted(key), c.isSpace() ? u"ein Leerzeichen"_s : u"das Zeichen "_s + shownCharacter(c));
    }
    return {};
}

// The pieces of a mapkey after which a line may end: each ends in a ";" outside `...`.
QStringList actionPieces(const QString& text) {
    QStringList pieces;
    bool inQuote = false;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'`')
            inQuote = !inQuote;
        else if (text.at(i) == u';' && !inQuote) {
            pieces << text.mid(start, i + 1 - start);
            start = i + 1;
        }
    }
    if (start < text.size())
        pieces << text.mid(start);
    return pieces;
}

bool usesPlaceholder(const QStringList& actions, const char16_t* placeholder) {
    const QString text = QString::fromUtf16(placeholder);
    for (const QString& action : actions) {
        if (action.contains(text))
            return true;
    }
    return false;
}

// The first piece, "mapkey KEY @MAPKEY_LABEL...;", with the label cut so that it fits a line.
QString mapkeyHead(const QString& key, QString label) {
    const QString bare = u"mapkey "_s + key + u' ' + kLabel + u';';
    const qsizetype room = kMaxMapkeyLineLength - 1 - bare.size();
    if (label.size() > room)
        label = label.left(qMax<qsizetype>(0, room - 3)) + u"..."_s;
    return u"mapkey "_s + key + u' ' + kLabel + label + u';';
}

} // namespace

QString substitutePlaceholders(QStringView action, const PlaceholderValues& values) {
    const std::array<std::pair<QStringView, const QString*>, 3> placeholders{{
        {QStringView(kFilePlaceholder), &values.file},
        {QStringView(kPathPlaceholder), &values.path},
        {QStringView(kFolderPlaceholder), &values.folder},
    }};
    QString out;
    out.reserve(action.size());
    qsizetype i = 0;
    while (i < action.size()) {
        bool replaced = false;
        if (action[i] == u'%') {
            for (const auto& [placeholder, value] : placeholders) {
                if (action.sliced(i).startsWith(placeholder)) {
                    // The value goes in as it is: a "%DATEI%" inside a name stays text.
                    out += *value;
                    i += placeholder.size();
                    replaced = true;
                    break;
                }
            }
        }
        if (!replaced)
            out += action[i++];
    }
    return out;
}

QList<MapkeyTemplate> defaultMapkeyTemplates() {
    return {
        {u"oeffnen"_s, u"Öffnen"_s, defaultActions(u"oeffnen"_s)},
        {u"regenerieren"_s, u"Öffnen und regenerieren"_s, defaultActions(u"regenerieren"_s)},
        {u"speichern"_s, u"Öffnen und speichern"_s, defaultActions(u"speichern"_s)},
    };
}

QStringList defaultActions(const QString& id) {
    if (id == u"oeffnen")
        return kOpenActions;
    // A regeneration is worth nothing unsaved, and each file of a batch opens a window of its own:
    // every template that changes a model saves it and closes its window again, or N files leave N
    // windows in the session.
    if (id == u"regenerieren")
        return kOpenActions + QStringList{u"~ Command `ProCmdRegenPart` ;"_s} + kSaveAndCloseActions;
    if (id == u"speichern")
        return kOpenActions + kSaveAndCloseActions;
    return {};
}

BatchParameters defaultBatchParameters() {
    BatchParameters parameters;
    parameters.keyPrefix = u"qm"_s;
    parameters.firstNumber = 1;
    parameters.templates = defaultMapkeyTemplates();
    return parameters;
}

QString checkKeyPrefix(const QString& prefix) {
    if (prefix.isEmpty())
        return u"Bitte geben Sie ein Tasten-Präfix an, zum Beispiel \"qm\"."_s;
    return checkKey(prefix, u"Das Tasten-Präfix"_s);
}

QString checkCollectorKey(const QString& key) {
    if (key.isEmpty())
        return {};
    return checkKey(key, u"Die Taste des Sammel-Mapkeys"_s);
}

static QString checkKeysAndNumber(const BatchParameters& parameters) {
    QString problem = checkKeyPrefix(parameters.keyPrefix);
    if (problem.isEmpty())
        problem = checkCollectorKey(parameters.collectorKey);
    if (problem.isEmpty() && (parameters.firstNumber < 0 || parameters.firstNumber > kMaxFirstNumber))
        problem = u"Die erste Nummer muss zwischen 0 und %1 liegen."_s.arg(kMaxFirstNumber);
    return problem;
}

QString checkActions(const QString& templateName, const QStringList& actions) {
    if (actions.isEmpty())
        return u"Die Vorlage %1 enthält keinen Befehl."_s.arg(quoted(templateName));
    for (const QString& action : actions) {
        const QString trimmed = action.trimmed();
        if (trimmed.isEmpty())
            return u"Die Vorlage %1 enthält einen leeren Befehl."_s.arg(quoted(templateName));
        if (!trimmed.endsWith(u';'))
            return u"Der Befehl %1 muss mit \";\" enden."_s.arg(quoted(trimmed));
        if (trimmed.count(u'`') % 2 != 0)
            return u"Im Befehl %1 fehlt ein schließendes \"`\"."_s.arg(quoted(trimmed));
        for (const QString& piece : actionPieces(trimmed)) {
            if (kContinued.size() + piece.size() + 1 > kMaxMapkeyLineLength)
                return u"Der Befehl %1 passt nicht in eine Mapkey-Zeile von höchstens %2 Zeichen."_s.arg(quoted(piece))
                    .arg(kMaxMapkeyLineLength);
        }
        for (const QChar c : trimmed) {
            if (c.category() == QChar::Other_Control)
                return u"Der Befehl %1 enthält ein Steuerzeichen."_s.arg(quoted(trimmed));
        }
    }
    return {};
}

QString checkBatchParameters(const BatchParameters& parameters) {
    QString problem = checkKeysAndNumber(parameters);
    for (const MapkeyTemplate& tmpl : parameters.templates) {
        if (problem.isEmpty())
            problem = checkActions(tmpl.name, tmpl.actions);
    }
    return problem;
}

QStringList batchKeys(const QString& prefix, int firstNumber, int count) {
    QStringList keys;
    if (count <= 0)
        return keys;
    const qsizetype width = QString::number(qint64(firstNumber) + count - 1).size();
    keys.reserve(count);
    for (qint64 number = firstNumber; number < qint64(firstNumber) + count; ++number)
        keys << prefix + QString::number(number).rightJustified(width, u'0');
    return keys;
}

QStringList wrapMapkey(const QString& mapkey, qsizetype maxLength) {
    QStringList lines;
    QString current;
    for (const QString& piece : actionPieces(mapkey)) {
        if (current.isEmpty())
            current = lines.isEmpty() ? piece : kContinued + piece;
        else if (current.size() + piece.size() + 1 <= maxLength)
            current += piece;
        else {
            lines << current + u'\\';
            current = kContinued + piece;
        }
        // Room for the "\" stays on every line, the last one included, so a line never has to be
        // split again when something is appended.
        if (current.size() + 1 > maxLength)
            return {};
    }
    if (!current.isEmpty())
        lines << current;
    return lines;
}

BatchResult generateBatchMapkeys(const QString& folder, const QStringList& fileNames, const MapkeyTemplate& tmpl,
                                 const BatchParameters& parameters) {
    BatchResult result;
    QString problem = checkKeysAndNumber(parameters);
    if (problem.isEmpty())
        problem = checkActions(tmpl.name, tmpl.actions);
    if (!problem.isEmpty()) {
        result.parametersRefused = true;
        result.problems << problem;
        return result;
    }

    const QString nativeFolder = QDir::toNativeSeparators(folder);
    const bool needsPath = usesPlaceholder(tmpl.actions, kPathPlaceholder);
    const bool needsFolder = usesPlaceholder(tmpl.actions, kFolderPlaceholder) || needsPath;
    if (needsFolder) {
        if (const QChar c = breakingCharacter(nativeFolder); !c.isNull()) {
            result.parametersRefused = true;
            result.problems << u"Der Ordner %1 enthält %2 und kann in keinem Mapkey stehen."_s.arg(quoted(nativeFolder),
                                                                                                   shownCharacter(c));
            return result;
        }
    }

    // Each file's actions first: a file that cannot be written as a mapkey gets no key, so the
    // numbers of the others stay without gaps.
    QList<QStringList> bodies;
    for (const QString& name : fileNames) {
        if (const QChar c = breakingCharacter(name); !c.isNull()) {
            result.problems << u"%1 ausgelassen: der Name enthält %2, das in einem Mapkey nicht stehen kann."_s.arg(
                quoted(name), shownCharacter(c));
            continue;
        }
        const PlaceholderValues values{name, joinFolderAndName(nativeFolder, name), nativeFolder};
        QString body;
        for (const QString& action : tmpl.actions)
            body += substitutePlaceholders(action.trimmed(), values);
        // The key is not known yet; a stand-in of the longest key's length tests the fit.
        const QStringList trial =
            wrapMapkey(mapkeyHead(QString(kMaxKeyLength + 6, u'x'), tmpl.name + u' ' + name) + body);
        if (trial.isEmpty()) {
            result.problems << u"%1 ausgelassen: der Name ist zu lang für eine Mapkey-Zeile von höchstens %2 Zeichen."_s
                                   .arg(quoted(name))
                                   .arg(kMaxMapkeyLineLength);
            continue;
        }
        result.files << name;
        bodies << QStringList{name, body};
    }
    if (result.files.isEmpty()) {
        if (fileNames.isEmpty())
            result.problems << u"Es ist keine Datei ausgewählt."_s;
        return result;
    }

    result.keys = batchKeys(parameters.keyPrefix, parameters.firstNumber, int(result.files.size()));
    const QString collector = parameters.collectorKey;
    if (!collector.isEmpty()) {
        for (const QString& key : std::as_const(result.keys)) {
            // One key must not be the beginning of another: the shorter would fire first.
            if (key.startsWith(collector) || collector.startsWith(key)) {
                result.parametersRefused = true;
                result.problems = QStringList{
                    u"Die Taste des Sammel-Mapkeys %1 überschneidet sich mit der Taste %2 der Dateien; bitte wählen Sie eine andere."_s
                        .arg(quoted(collector), quoted(key))};
                result.keys.clear();
                result.files.clear();
                return result;
            }
        }
    }

    result.lines << u"! quenfor Mapkey-Generator, Vorlage \"%1\": %2 Mapkeys"_s.arg(tmpl.name).arg(result.files.size());
    for (qsizetype i = 0; i < bodies.size(); ++i) {
        const QString& name = bodies.at(i).at(0);
        result.lines << wrapMapkey(mapkeyHead(result.keys.at(i), tmpl.name + u' ' + name) + bodies.at(i).at(1));
    }
    if (!collector.isEmpty()) {
        QString all = mapkeyHead(collector, u"alle %1 Mapkeys: %2"_s.arg(result.keys.size()).arg(tmpl.name));
        for (const QString& key : std::as_const(result.keys))
            all += u'%' + key + u';';
        result.lines << wrapMapkey(all);
    }
    return result;
}

} // namespace quenfor
