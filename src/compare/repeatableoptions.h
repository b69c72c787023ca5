#pragma once

#include <QSet>
#include <QString>

namespace quenfor {

// Options whose every line adds a value instead of replacing the one before (search_path,
// browser_favorite, ...). The names live in one place, data/repeatable_options.txt beside the
// program, which the checks read as well. Mapkeys are not in question: each key sequence is a
// setting of its own, and a second definition of the same keys replaces the first.
struct RepeatableOptions {
    QSet<QString> names; // lower case
    QString note;        // German, when the list could not be read and the fallback is used
};

// Reads the list from the data folder. Without it only search_path collects: an option whose
// nature is unknown is taken as single-valued, where the later file wins.
RepeatableOptions loadRepeatableOptions(const QString& dataFolder);

} // namespace quenfor
