#pragma once

#include "compare/configdiff.h"
#include "compare/effectiveconfig.h"

#include <QString>

#include <functional>

namespace quenfor {

// The texts of "effective" and "diff", shared by the command line and the windows. Values from
// the files show control characters in caret notation (^I for a tab), so no value can break a
// line or a column.

// Where a long text goes while it is built: `flush` writes out the text so far and empties it.
// A value longer than `slice` characters is appended slice by slice with a flush after each, so
// a value of hundreds of megabytes is never held once more as output. Without `flush` every
// value is appended whole.
struct TextDrain {
    std::function<void(QString&)> flush;
    qsizetype slice = qsizetype(1) << 16;
};

// "search_path" or "mapkey $F2": how a setting is named in every text.
QString settingTitle(EntryKind kind, const QString& name);

// Readable lines of one setting, e.g. "bell yes  (config.pro:12)", then indented "überschreibt:"
// and "gesperrt durch config.sup:" lines with their places. `files` are the names as shown.
void appendEffectiveText(QString& out, const EffectiveSetting& s, const QStringList& files,
                         const TextDrain& drain = {});
// Tab-separated: name, value, file, line, state (effective, locked, overridden, refused); one
// row per line that set the setting.
void appendEffectiveTsv(QString& out, const EffectiveSetting& s, const QStringList& files, const TextDrain& drain = {});

// "hinzugefügt", "entfernt", "geändert".
QString changeText(DiffChange change);
// One readable line: "+ name: value  (B:12)", "- name: value  (A:3)", "~ name: alt → neu  (A:3 → B:5)".
void appendDiffText(QString& out, const DiffEntry& d, const QString& fileA, const QString& fileB,
                    const TextDrain& drain = {});
// Tab-separated: change (added, removed, changed), kind (option, mapkey), name, old value, new
// value, line in A, line in B (empty where there is none).
void appendDiffTsv(QString& out, const DiffEntry& d, const TextDrain& drain = {});
// "2 hinzugefügt, 1 entfernt, 3 geändert", or that both files set the same.
QString diffSummaryText(const std::vector<DiffEntry>& diff);

// Tooltips of the main list's marks.
QString lockedLineText(const EffectiveSetting& s, const std::vector<ConfigSource>& sources);
QString overriddenLineText(const EffectiveSetting& s, const std::vector<ConfigSource>& sources);

} // namespace quenfor
