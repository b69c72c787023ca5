#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace quenfor {

// Paths in configuration files come from Windows, so "\" counts as a separator beside "/".
bool isPathSeparator(QChar c);
// The separators of this system's own paths: names on a Linux disk may hold "\".
bool isNativeSeparator(QChar c);
bool endsWithPathSeparator(QStringView path);

// True when prefix is path itself or one of its leading folders: "/mnt/a" begins "/mnt/a/b" but
// not "/mnt/ab". An empty prefix begins nothing.
bool beginsWithPathPrefix(QStringView path, QStringView prefix, Qt::CaseSensitivity cs);

// "/" separators only, runs of separators collapsed to one. keepLeadingPair keeps the "//" that
// opens a network path.
QString withSingleForwardSlashes(QStringView path, bool keepLeadingPair);

} // namespace quenfor
