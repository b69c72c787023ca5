#include "desktools/processtable.h"

#include <algorithm>

namespace quenfor {

namespace {

// MAX_PATH: the longest name the Windows snapshot can report.
constexpr qsizetype kLongestName = 260;

} // namespace

void sortByName(QList<ProcessEntry>& processes) {
    std::sort(processes.begin(), processes.end(), [](const ProcessEntry& a, const ProcessEntry& b) {
        const int byName = a.name.compare(b.name, Qt::CaseInsensitive);
        return byName != 0 ? byName < 0 : a.pid < b.pid;
    });
}

QString programNameFromPath(QStringView reported, bool backslashIsSeparator) {
    const qsizetype nul = reported.indexOf(QChar(u'\0'));
    QStringView path = nul < 0 ? reported : reported.left(nul);
    qsizetype separator = path.lastIndexOf(u'/');
    if (backslashIsSeparator)
        separator = std::max(separator, path.lastIndexOf(u'\\'));
    return path.mid(separator + 1).left(kLongestName).toString();
}

} // namespace quenfor
