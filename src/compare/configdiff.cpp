#include "compare/configdiff.h"

#include <QHash>

#include <algorithm>

namespace quenfor {

namespace {

// What one file sets: for an option or mapkey its last value, for a repeatable option every value.
struct FileSetting {
    EntryKind kind = EntryKind::Option;
    QStringView name;
    std::vector<const ConfigEntry*> values; // one, or for a repeatable option each line in order
};

using FileSettings = QHash<QStringView, FileSetting>;
using NameSet = QSet<QStringView>;

FileSettings settingsOf(const std::vector<ConfigEntry>& entries, const NameSet& repeatable) {
    FileSettings out;
    out.reserve(qsizetype(entries.size()));
    for (const ConfigEntry& e : entries) {
        FileSetting& s = out[e.key];
        if (s.values.empty()) {
            s.kind = e.kind;
            s.name = e.name;
        }
        if (e.kind == EntryKind::Option && repeatable.contains(e.key))
            s.values.push_back(&e);
        else
            s.values.assign(1, &e); // the last one counts
    }
    return out;
}

// The text an entry's value points into: its line, or the macro joined from several lines.
QString holderOf(const ConfigEntry& e, const QStringList& lines) {
    return e.macro.isNull() ? lines.at(e.line - 1) : e.macro;
}

DiffEntry added(const FileSetting& s, const ConfigEntry& b, const QStringList& linesB) {
    return {DiffChange::Added, s.kind, s.name.toString(), {}, b.value, 0, b.line, {}, holderOf(b, linesB)};
}

DiffEntry removed(const FileSetting& s, const ConfigEntry& a, const QStringList& linesA) {
    return {DiffChange::Removed, s.kind, s.name.toString(), a.value, {}, a.line, 0, holderOf(a, linesA), {}};
}

// Repeatable options: a value counts as many times as it stands; the surplus on either side differs.
void diffCollected(const FileSetting& a, const FileSetting& b, const QStringList& linesA, const QStringList& linesB,
                   std::vector<DiffEntry>& out) {
    QHash<QString, std::vector<const ConfigEntry*>> inA;
    for (const ConfigEntry* e : a.values)
        inA[comparableValue(e->value)].push_back(e);
    std::vector<const ConfigEntry*> onlyB;
    for (const ConfigEntry* e : b.values) {
        auto match = inA.find(comparableValue(e->value));
        if (match != inA.end() && !match->empty())
            match->erase(match->begin());
        else
            onlyB.push_back(e);
    }
    std::vector<const ConfigEntry*> onlyA;
    for (const ConfigEntry* e : a.values) {
        const auto left = inA.constFind(comparableValue(e->value));
        if (std::find(left->begin(), left->end(), e) != left->end())
            onlyA.push_back(e);
    }
    for (const ConfigEntry* e : onlyA)
        out.push_back(removed(b, *e, linesA));
    for (const ConfigEntry* e : onlyB)
        out.push_back(added(b, *e, linesB));
}

} // namespace

std::vector<DiffEntry> diffConfigs(const QStringList& linesA, const QStringList& linesB,
                                   const QSet<QString>& repeatable) {
    const std::vector<ConfigEntry> entriesA = configEntriesOf(linesA);
    const std::vector<ConfigEntry> entriesB = configEntriesOf(linesB);
    const NameSet repeatableNames(repeatable.cbegin(), repeatable.cend());
    const FileSettings a = settingsOf(entriesA, repeatableNames);
    const FileSettings b = settingsOf(entriesB, repeatableNames);

    std::vector<DiffEntry> out;
    std::vector<QStringView> keys;
    for (auto it = a.cbegin(); it != a.cend(); ++it)
        keys.push_back(it.key());
    for (auto it = b.cbegin(); it != b.cend(); ++it) {
        if (!a.contains(it.key()))
            keys.push_back(it.key());
    }
    std::sort(keys.begin(), keys.end());
    for (const QStringView key : keys) {
        const auto inA = a.constFind(key);
        const auto inB = b.constFind(key);
        if (inB == b.cend()) {
            for (const ConfigEntry* e : inA->values)
                out.push_back(removed(*inA, *e, linesA));
        } else if (inA == a.cend()) {
            for (const ConfigEntry* e : inB->values)
                out.push_back(added(*inB, *e, linesB));
        } else if (inA->kind == EntryKind::Option && repeatableNames.contains(key)) {
            diffCollected(*inA, *inB, linesA, linesB, out);
        } else {
            const ConfigEntry& oldE = *inA->values.front();
            const ConfigEntry& newE = *inB->values.front();
            if (!sameSettingValue(inB->kind, oldE.value, newE.value))
                out.push_back({DiffChange::Changed, inB->kind, inB->name.toString(), oldE.value, newE.value, oldE.line,
                               newE.line, holderOf(oldE, linesA), holderOf(newE, linesB)});
        }
    }
    return out;
}

} // namespace quenfor
