#include "document/cleanuptools.h"

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

// Sorts the indexes of `lines` in collation order; equal lines keep their order.
void sortIndexes(const QStringList& lines, std::vector<int>& indexes, const LineCollator& collator) {
    if (!collator.hasAsciiTable()) {
        std::vector<QCollatorSortKey> keys;
        keys.reserve(indexes.size());
        for (int i : indexes)
            keys.push_back(collator.collator().sortKey(lines[i]));
        std::vector<int> order(indexes.size());
        for (size_t i = 0; i < order.size(); ++i)
            order[i] = int(i);
        // As QCollator::compare does, an empty line goes before every other line, even one whose
        // characters the collation ignores (their sort keys would be equal).
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            const bool emptyA = lines[indexes[a]].isEmpty();
            const bool emptyB = lines[indexes[b]].isEmpty();
            if (emptyA || emptyB)
                return emptyA && !emptyB;
            return keys[a].compare(keys[b]) < 0;
        });
        std::vector<int> sorted;
        sorted.reserve(order.size());
        for (int i : order)
            sorted.push_back(indexes[i]);
        indexes.swap(sorted);
        return;
    }

    // A packed prefix decides most comparisons without looking at the text.
    struct Entry {
        LineCollator::SortPrefix prefix;
        int index;
    };
    std::vector<Entry> entries;
    entries.reserve(indexes.size());
    for (int i : indexes)
        entries.push_back({collator.sortPrefix(lines[i]), i});
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        const int c = collator.comparePrefixed(a.prefix, lines[a.index], b.prefix, lines[b.index]);
        return c != 0 ? c < 0 : a.index < b.index;
    });
    for (size_t i = 0; i < entries.size(); ++i)
        indexes[i] = entries[i].index;
}

} // namespace

QStringList sortLinesAlphabetically(const QStringList& lines, const QLocale& locale, std::optional<QString>* dropped) {
    std::vector<int> sortedPart;
    std::vector<int> keptPart;
    sortedPart.reserve(lines.size());
    for (int i = 0; i < lines.size(); ++i)
        (staysUnsorted(lines[i]) ? keptPart : sortedPart).push_back(i);

    sortIndexes(lines, sortedPart, LineCollator::forLocale(locale));

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
