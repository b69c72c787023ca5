#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

// The default file choice of the mapkey generator: parts, assemblies and drawings.
inline constexpr char16_t kDefaultBatchPatterns[] = u"*.prt;*.asm;*.drw";

// "bracket.prt.3" -> "bracket.prt": the CAD system opens an object by its name without the version
// and always loads the highest one. A name without a further dot before the number ("notes.1") and
// a name without a version stay as they are.
QString objectFileName(const QString& fileName);

struct BatchFileList {
    QStringList names; // object names, each once, sorted without regard to case
    QString error;     // German; the list is then empty
};

// The objects of a folder whose names (without version) match one of the ";"-separated wildcard
// patterns, without regard to case; an empty pattern text means every file. Sub-folders and
// hidden files are not listed.
BatchFileList listBatchFiles(const QString& folder, const QString& patternText);

} // namespace quenfor
