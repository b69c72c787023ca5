#pragma once

#include "compare/configentries.h"
#include "compare/configsource.h"

#include <QSet>
#include <QString>

#include <vector>

namespace quenfor {

// One line that set a value: which file (index into the sources as given) and which line.
struct SettingPlace {
    int file = 0;
    int line = 0;
    QStringView value;
};

// What the CAD system ends up with for one option or mapkey after reading every file.
struct EffectiveSetting {
    EntryKind kind = EntryKind::Option;
    QStringView key;                      // identity (see ConfigEntry::key)
    QStringView name;                     // as written where it was first set
    bool collects = false;                // a repeatable option: every value in `inEffect` counts
    bool locked = false;                  // set by a config.sup: later files cannot change it
    std::vector<SettingPlace> inEffect;   // one value, or for a collecting option all, in load order
    std::vector<SettingPlace> overridden; // values a later line replaced, in load order
    std::vector<SettingPlace> refused;    // later, other values the config.sup kept out
};

// Names and values point into the sources' lines: keep the sources while using the result.
struct EffectiveConfig {
    std::vector<int> loadOrder;             // source indexes in the order they were read
    std::vector<EffectiveSetting> settings; // sorted by key
    std::vector<QString> texts;             // joined mapkey macros and keys the views point into
};

// Reads the sources the way the CAD system loads them: every config.sup first (their order
// kept), then the other files in the order given; within a file from top to bottom. A later
// value replaces an earlier one, except that an option set by a config.sup stays as it is there,
// and options named in `repeatable` collect every value instead.
EffectiveConfig effectiveConfig(const std::vector<ConfigSource>& sources, const QSet<QString>& repeatable);

} // namespace quenfor
