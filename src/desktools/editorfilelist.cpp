#include "desktools/editorfilelist.h"

#include "cadfiles/directorylisting.h"
#include "cadfiles/findpattern.h"

#include <algorithm>
#include <vector>

namespace quenfor {

QStringList editorFilesIn(const QString& folder, const QString& pattern) {
    std::vector<FindPattern> patterns;
    for (const QString& part : pattern.split(u';', Qt::SkipEmptyParts)) {
        const QString trimmed = part.trimmed();
        if (!trimmed.isEmpty())
            patterns.emplace_back(trimmed);
    }
    QStringList files;
    for (const QString& name : listDirectory(folder).files) {
        if (std::any_of(patterns.begin(), patterns.end(), [&](const FindPattern& p) { return p.matches(name); }))
            files.append(name);
    }
    std::sort(files.begin(), files.end(), [](const QString& a, const QString& b) {
        const int folded = a.compare(b, Qt::CaseInsensitive);
        return folded != 0 ? folded < 0 : a < b;
    });
    return files;
}

} // namespace quenfor
