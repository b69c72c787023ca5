#include "knowledge/mapkeytools.h"

#include "document/configdocument.h"

#include <QHash>
#include <QSet>
#include <QSignalBlocker>

#include <array>

namespace quenfor {

namespace {

constexpr QStringView kFirstLinePrefix = u"mapkey ";

} // namespace

bool isMapkeyFirstLine(QStringView line) {
    return line.startsWith(kFirstLinePrefix);
}

std::optional<QString> mapkeyName(QStringView line) {
    if (!isMapkeyFirstLine(line))
        return std::nullopt;
    const qsizetype start = kFirstLinePrefix.size();
    const qsizetype blank = line.indexOf(u' ', start);
    // The last two characters are never scanned, so a blank there ends no name.
    if (blank < 0 || blank > line.size() - 3)
        return std::nullopt;
    return line.sliced(start, blank - start).toString();
}

QStringList mapkeyNames(const QStringList& lines) {
    QStringList names;
    for (const QString& line : lines) {
        if (std::optional<QString> name = mapkeyName(line))
            names.append(std::move(*name));
    }
    return names;
}

QString mapkeySearchText(const QString& name) {
    return kFirstLinePrefix.toString() + name + u' ';
}

QStringList duplicateMapkeyLines(const QStringList& lines) {
    // Views into `lines`, which outlive the table: no copy of any line.
    QHash<QStringView, qsizetype> counts;
    for (const QString& line : lines) {
        if (isMapkeyFirstLine(line))
            ++counts[QStringView(line)];
    }
    QStringList entries;
    for (const QString& line : lines) {
        if (!isMapkeyFirstLine(line))
            continue;
        const auto it = counts.find(QStringView(line));
        if (it.value() >= 2)
            entries.append(line);
        it.value() = 0; // listed (or single): later copies add nothing
    }
    return entries;
}

QList<int> linesMatchingEntries(const QStringList& lines, const QStringList& entries) {
    // Keys shorter than 18 characters come from short entries; grouping the keys by length lets
    // every line be looked up once per length that occurs, instead of once per entry.
    std::array<QSet<QStringView>, kMarkKeyLength + 1> keysByLength;
    for (const QString& entry : entries) {
        const QStringView key = QStringView(entry).left(kMarkKeyLength);
        keysByLength[size_t(key.size())].insert(key);
    }
    QList<qsizetype> lengths;
    for (qsizetype length = 0; length <= kMarkKeyLength; ++length) {
        if (!keysByLength[size_t(length)].isEmpty())
            lengths.append(length);
    }

    QList<int> rows;
    if (lengths.isEmpty())
        return rows;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView line = lines[i];
        for (qsizetype length : std::as_const(lengths)) {
            if (line.size() >= length && keysByLength[size_t(length)].contains(line.left(length))) {
                rows.append(int(i));
                break;
            }
        }
    }
    return rows;
}

int markDuplicateLines(ConfigDocument& doc, const QStringList& entries) {
    const QList<int> rows = linesMatchingEntries(doc.lines(), entries);
    bool changed = false;
    {
        // One notification for all rows: a view re-reads the whole selection on each.
        const QSignalBlocker quiet(doc);
        for (int row : rows) {
            if (!doc.isSelected(row)) {
                doc.setSelected(row, true);
                changed = true;
            }
        }
    }
    if (changed)
        emit doc.selectionChanged();
    if (!rows.isEmpty())
        emit doc.scrollRequested(rows.first());
    return int(rows.size());
}

} // namespace quenfor
