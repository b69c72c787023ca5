#pragma once

#include "document/documentfile.h"
#include "document/filefamily.h"
#include "lint/knownnames.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

class OptionReleases;
class ValueRules;

// Where the checks find what they compare with, and what they may do.
struct LintOptions {
    QString dataFolder;      // the files beside the program
    QString knowledgeBase;   // empty: the knowledge base of the file's family in dataFolder
    EncodingChoice encoding; // for the files read (the checked file, knowledge base, picker source)
    bool checkPaths = false; // search.pro: look whether every folder exists
    QString release;         // short name of the release to check against ("CP6"); empty: none
};

inline constexpr char16_t kKnownOptionsFile[] = u"known_options.txt";
inline constexpr char16_t kKnownDtlOptionsFile[] = u"known_dtl_options.txt";
inline constexpr char16_t kKnownPcfOptionsFile[] = u"known_pcf_options.txt";
inline constexpr char16_t kRepeatableOptionsFile[] = u"repeatable_options.txt";

// What the checks of one file family compare with: the names its lists know and the options
// that may be set more than once. A list that cannot be read turns its check off and says so.
struct LintRules {
    FamilyKind family = FamilyKind::None;
    std::optional<KnownNames> known;          // empty: option names are not checked
    std::optional<QSet<QString>> repeatable;  // empty: values set twice are not compared
    const ValueRules* values = nullptr;       // built in; null: values are not checked
    const OptionReleases* releases = nullptr; // built in; null: the family has no release lists
    QStringList notes;                        // German: what was not checked, and why
    bool complete = true;                     // false when a list beside the program is missing
};

// Known for a config file: the shipped list of every option name, the knowledge base, the
// category lists and the picker source; for a .dtl and a .pcf file the lists of their own kind.
LintRules loadLintRules(const FileFamily& family, const LintOptions& options);

} // namespace quenfor
