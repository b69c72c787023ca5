#include "common/drivecontaining.h"

#include "common/pathseparators.h"

#include <QDir>

namespace quenfor {

qsizetype driveContaining(const QStringList& driveRoots, const QString& folder) {
#ifdef Q_OS_WIN
    constexpr Qt::CaseSensitivity cs = Qt::CaseInsensitive;
#else
    constexpr Qt::CaseSensitivity cs = Qt::CaseSensitive;
#endif
    const QString path = QDir::fromNativeSeparators(folder);
    qsizetype best = -1;
    qsizetype bestLength = -1;
    for (qsizetype i = 0; i < driveRoots.size(); ++i) {
        const QString root = QDir::fromNativeSeparators(driveRoots[i]);
        if (root.size() > bestLength && beginsWithPathPrefix(path, root, cs)) {
            best = i;
            bestLength = root.size();
        }
    }
    return best;
}

} // namespace quenfor
