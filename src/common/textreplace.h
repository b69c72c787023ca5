#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// Replaces the first occurrence of search in text, found without regard to case, by replacement.
// Returns whether a replacement happened; an empty search text never matches.
bool replaceFirstIgnoringCase(QString& text, QStringView search, QStringView replacement);

} // namespace quenfor
