#include "document/cleanuptools.h"

#include "document/collatedsort.h"
#include "document/configdocument.h"
#include "document/linecollator.h"
#include "document/linekind.h"
#include "document/linesplit.h"

#include <QHash>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

QStringList removeBlankLines(const QStringList& lines) {
    QStringList kept;
    kept.reserve(lines.size());
    for (const QString& line : lines) {
        if (isBlankLine(line))
            continue;
        if (!line.contains(u"  ")) {
            kept.append(line);
            continue;
        }
        QString collapsed;
        collapsed.reserve(line.size());
        for (QChar c : line) {
            if (c == u' ' && collapsed.endsWith(u' '))
                continue;
            collapsed.append(c);
        }
        kept.append(collapsed);
    }
    return kept;
}

QString removeBlankLines(ConfigDocument& doc) {
    doc.replaceAll(removeBlankLines(doc.lines()));
    return u"temporäre Datei gespeichert"_s;
}

QStringList removeDuplicateLines(QStringList lines) {
    // An open-addressing set of line numbers: a few bytes a line, where a hash of strings would
    // cost more than the lines themselves on a large file. Kept lines move forward in place, so
    // the list is never held twice.
    size_t capacity = 16;
    while (capacity < size_t(lines.size()) * 2)
        capacity *= 2;
    const size_t mask = capacity - 1;
    std::vector<int> table(capacity, -1);
    std::vector<quint32> slotHash(capacity, 0);

    int kept = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QString& line = lines[i];
        if (!line.isEmpty() && !startsWithMapkey(line)) {
            const auto hash = quint32(qHash(line));
            size_t slot = hash & mask;
            bool duplicate = false;
            while (table[slot] >= 0) {
                if (slotHash[slot] == hash && lines[table[slot]] == line) {
                    duplicate = true;
                    break;
                }
                slot = (slot + 1) & mask;
            }
            if (duplicate)
                continue;
            table[slot] = kept;
            slotHash[slot] = hash;
        }
        if (kept != i)
            lines[kept] = std::move(lines[i]);
        ++kept;
    }
    lines.resize(kept);
    return lines;
}

QString removeDuplicateLines(ConfigDocument& doc) {
    if (doc.isEmpty())
        return u"kein Inhalt"_s;
    doc.replaceAll(removeDuplicateLines(doc.lines()));
    return QString::fromUtf16(kRemovingDuplicatesStatus);
}

namespace {

bool staysUnsorted(QStringView line) {
    return startsWithMapkey(line) || isCommentLine(line) || line.startsWith(u"browser_favorite");
}

} // namespace

QStringList sortLinesAlphabetically(const QStringList& lines, const QLocale& locale, std::optional<QString>* dropped) {
    std::vector<int> sortedPart;
    std::vector<int> keptPart;
    sortedPart.reserve(lines.size());
    for (int i = 0; i < lines.size(); ++i)
        (staysUnsorted(lines[i]) ? keptPart : sortedPart).push_back(i);

    sortLineIndexes(lines, sortedPart, LineCollator::forLocale(locale));

    if (dropped)
        *dropped = sortedPart.empty() ? std::nullopt : std::optional<QString>(lines[sortedPart.front()]);

    QStringList result;
    result.reserve(lines.size());
    for (size_t i = 1; i < sortedPart.size(); ++i)
        result.append(lines[sortedPart[i]]);
    for (int i : keptPart)
        result.append(lines[i]);
    return result;
}

QString sortLinesAlphabetically(ConfigDocument& doc, const QLocale& locale) {
    doc.replaceAll(sortLinesAlphabetically(doc.lines(), locale));
    return u"sortieren..."_s;
}

QStringList lowerCaseLines(const QStringList& lines) {
    QStringList result = lines;
    for (QString& line : result) {
        if (!isCommentLine(line) && !startsWithMapkey(line))
            line = line.toLower();
    }
    return result;
}

void lowerCaseLines(ConfigDocument& doc) {
    doc.replaceAll(lowerCaseLines(doc.lines()));
}

QStringList repairFragmentedText(QString fileText, qsizetype lineCount) {
    fileText.truncate(offsetAfterLines(fileText, lineCount));
    fileText.replace(u'\n', u'\r');
    return splitLines(fileText);
}

QString repairSaveQuestion(const QString& fileName) {
    return u"Wollen Sie die Datei "_s + fileName + u" vorher speichern ?"_s;
}

} // namespace quenfor
