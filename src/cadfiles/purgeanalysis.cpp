#include "cadfiles/purgeanalysis.h"

#include "cadfiles/directorylisting.h"
#include "common/pathseparators.h"
#include "common/pathsplit.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

QString purgeKey(const QString& fileName) {
    const PathParts parts = splitPath(fileName, Separators::Native);
    return parts.name + u'.' + parts.extension;
}

namespace {

bool isAscii(const QString& text) {
    for (QChar c : text) {
        if (c.unicode() >= 0x80)
            return false;
    }
    return true;
}

// Sorts by key, then by the exact name; Key is QByteArray (plain ASCII names, compared byte by
// byte, which is their code unit order) or QString (any names).
template <typename Key> void sortByUpperKey(QStringList& names, Key (*upperOf)(const QString&)) {
    struct Entry {
        Key key;
        qsizetype index;
    };
    QList<Entry> entries;
    entries.reserve(names.size());
    for (qsizetype i = 0; i < names.size(); ++i)
        entries.append({upperOf(names[i]), i});
    std::sort(entries.begin(), entries.end(), [&names](const Entry& a, const Entry& b) {
        if (a.key != b.key)
            return a.key < b.key;
        return QString::compare(names[a.index], names[b.index], Qt::CaseSensitive) < 0;
    });
    QStringList sorted;
    sorted.reserve(names.size());
    for (const Entry& entry : std::as_const(entries))
        sorted.append(std::move(names[entry.index]));
    names = std::move(sorted);
}

// ASCII names sort by their upper-case bytes; the first sixteen, packed into two words, decide
// nearly every comparison without touching the strings.
void sortAsciiNames(QStringList& names) {
    struct Entry {
        quint64 high;
        quint64 low;
        qsizetype index;
    };
    std::vector<Entry> entries;
    entries.reserve(size_t(names.size()));
    for (qsizetype i = 0; i < names.size(); ++i) {
        Entry e{0, 0, i};
        const QString& name = names[i];
        const qsizetype n = qMin<qsizetype>(name.size(), 16);
        for (qsizetype k = 0; k < n; ++k) {
            quint64 c = name[k].unicode();
            if (c >= 'a' && c <= 'z')
                c -= 32;
            if (k < 8)
                e.high |= c << (8 * (7 - k));
            else
                e.low |= c << (8 * (15 - k));
        }
        entries.push_back(e);
    }
    const auto upperLess = [&names](qsizetype a, qsizetype b) {
        const QString& x = names[a];
        const QString& y = names[b];
        const qsizetype n = qMin(x.size(), y.size());
        for (qsizetype k = 16; k < n; ++k) {
            char16_t cx = x[k].unicode();
            char16_t cy = y[k].unicode();
            cx = (cx >= u'a' && cx <= u'z') ? char16_t(cx - 32) : cx;
            cy = (cy >= u'a' && cy <= u'z') ? char16_t(cy - 32) : cy;
            if (cx != cy)
                return cx < cy ? -1 : 1;
        }
        return x.size() == y.size() ? 0 : (x.size() < y.size() ? -1 : 1);
    };
    std::sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (a.high != b.high)
            return a.high < b.high;
        if (a.low != b.low)
            return a.low < b.low;
        if (const int c = upperLess(a.index, b.index); c != 0)
            return c < 0;
        return QString::compare(names[a.index], names[b.index], Qt::CaseSensitive) < 0;
    });
    QStringList sorted;
    sorted.reserve(names.size());
    for (const Entry& entry : entries)
        sorted.append(std::move(names[entry.index]));
    names = std::move(sorted);
}

// The upper-case form; a kept byte of a name that is no UTF-8 (a lone surrogate, see
// rawfilenames.h) stays itself, where toUpper would make every one U+FFFD and so mix the names.
QString fullUpper(const QString& name) {
    QString key;
    qsizetype start = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i].isLowSurrogate() && !(i > 0 && name[i - 1].isHighSurrogate())) {
            key += name.mid(start, i - start).toUpper();
            key += name[i];
            start = i + 1;
        }
    }
    return start == 0 ? name.toUpper() : key + name.mid(start).toUpper();
}

} // namespace

void sortLikeFileList(QStringList& names) {
    // Nearly all CAD file names are plain ASCII: their upper-case forms compare as bytes.
    if (std::all_of(names.cbegin(), names.cend(), isAscii))
        sortAsciiNames(names);
    else
        sortByUpperKey(names, fullUpper);
}

namespace {

// A version text read as a single-precision number, as the comparison has always done; nothing
// for a text that is no finite number.
std::optional<float> versionNumber(QStringView text) {
    // Plain digits, the usual version, are read directly: exact as a double up to 15 digits, then
    // rounded to single precision just as the general reading does.
    if (!text.isEmpty() && text.size() <= 15) {
        double value = 0;
        bool digits = true;
        for (QChar c : text) {
            if (c < u'0' || c > u'9') {
                digits = false;
                break;
            }
            value = value * 10 + (c.unicode() - u'0');
        }
        if (digits)
            return float(value);
    }
    bool ok = false;
    const float value = text.toFloat(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// The name split of a file name as views into it, without the allocations of splitPath (this runs
// for every file of a folder); the randomized test holds it to splitPath.
struct NameSplit {
    QStringView name;
    QStringView extension;

    // name & "." & extension compared as one text, as the key always was.
    bool sameKey(const NameSplit& other) const {
        if (name.size() == other.name.size())
            return name == other.name && extension == other.extension;
        if (name.size() + extension.size() != other.name.size() + other.extension.size())
            return false;
        return QString(name.toString() + u'.').append(extension) ==
               QString(other.name.toString() + u'.').append(other.extension);
    }
};

NameSplit splitName(QStringView path) {
    QStringView rest = path;
    if (startsWithDrive(rest))
        rest = rest.mid(2);
    qsizetype end = rest.size();
    qsizetype extensionEnd = end;
    qsizetype index = end - 1;
    for (; index >= 0; --index) {
        const QChar c = rest[index];
        if (isNativeSeparator(c))
            break;
        if (c == u'.' && index < end - 1) {
            extensionEnd = end;
            end = index;
        }
    }
    return {rest.mid(index + 1, end - index - 1), rest.mid(end, extensionEnd - end)};
}

} // namespace

QStringList purgeCandidates(const QString& folder, const QStringList& sortedNames) {
    // Files whose neighbour in the sorted list has the same key: the objects with more than one file.
    QList<NameSplit> splits;
    splits.reserve(sortedNames.size());
    for (const QString& name : sortedNames)
        splits.append(splitName(name));
    QList<qsizetype> paired;
    for (qsizetype i = 1; i < splits.size(); ++i) {
        if (splits[i].sameKey(splits[i - 1])) {
            if (paired.isEmpty() || paired.back() != i - 1)
                paired.append(i - 1);
            paired.append(i);
        }
    }
    if (paired.size() < 2)
        return {};

    // The version is the text behind name & extension and their dot, read from the full path. The
    // folder being common to all, equal bases are equal name & extension, so the files are
    // grouped by that.
    const QString prefix = joinFolderAndName(folder, u"");
    QStringList paths;
    paths.reserve(paired.size());
    for (qsizetype index : std::as_const(paired)) {
        QString path;
        path.reserve(prefix.size() + sortedNames[index].size());
        path.append(prefix).append(sortedNames[index]);
        paths.append(std::move(path));
    }
    // Views into paths, which no longer change.
    struct Candidate {
        QStringView base; // name & extension
        std::optional<float> version;
    };
    QList<Candidate> candidates;
    candidates.reserve(paths.size());
    QHash<QStringView, float> highest;
    highest.reserve(paths.size());
    for (const QString& path : std::as_const(paths)) {
        const NameSplit split = splitName(path);
        // Name and extension stand side by side in the path.
        const QStringView base(split.name.data(), split.name.size() + split.extension.size());
        const QStringView versionText = QStringView(path).mid(qMin(prefix.size() + base.size() + 1, path.size()));
        const std::optional<float> version = versionNumber(versionText.isEmpty() ? QStringView(u"0") : versionText);
        if (version) {
            auto it = highest.find(base);
            if (it == highest.end())
                highest.insert(base, *version);
            else if (*it < *version)
                *it = *version;
        }
        candidates.append({base, version});
    }

    QStringList purge;
    for (qsizetype k = 0; k < paths.size(); ++k) {
        const Candidate& candidate = candidates[k];
        if (candidate.version && highest.value(candidate.base) > *candidate.version)
            purge.append(paths[k]);
    }
    return purge;
}

QStringList analyseFolder(const QString& folder) {
    DirectoryEntries entries = listDirectory(folder);
    sortLikeFileList(entries.files);
    return purgeCandidates(folder, entries.files);
}

} // namespace quenfor
