#pragma once

#include "cadfiles/findpattern.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace quenfor {

// "*.bom*;*.inf*;...": the by-product files of the CAD system that the clean deletes, each with a
// trailing "*" so that versioned by-products (x.log.3) match too. Also the "Reset" value.
QString defaultCleaningPatterns();

// The extensions list of the options frame, read from a pattern text: 3 characters at position 3,
// and again every 7 characters while the position is below the text's length. This presumes the
// form "*.abc*;" for every pattern; a longer or shorter extension comes out cut into wrong pieces
// ("*.bomx*;*.txt*" gives "bom" and ".tx"), which users of the options frame know and expect.
QStringList extensionsFromPatterns(const QString& patternText);

// The pattern text built from the extensions list: "*.abc*;*.def*". Empty for no extensions.
QString patternsFromExtensions(const QStringList& extensions);

// Matches file names against a ";"-separated wildcard list by the finder's rule (findpattern.h),
// without regard to case as the file list control does. Empty patterns are ignored; a list
// without any pattern matches nothing, so an emptied list can never clean a whole folder.
class CleaningPatterns {
public:
    explicit CleaningPatterns(const QString& patternText);

    bool isEmpty() const { return m_patterns.empty(); }
    bool matches(const QString& fileName) const;
    // The matching names, in the order given.
    QStringList filter(const QStringList& fileNames) const;

private:
    std::vector<FindPattern> m_patterns;
};

} // namespace quenfor
