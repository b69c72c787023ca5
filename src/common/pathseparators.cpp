#include "common/pathseparators.h"

namespace quenfor {

bool isPathSeparator(QChar c) {
    return c == u'/' || c == u'\\';
}

bool isNativeSeparator(QChar c) {
#ifdef Q_OS_WIN
    return c == u'/' || c == u'\\';
#else
    return c == u'/';
#endif
}

bool endsWithPathSeparator(QStringView path) {
    return !path.isEmpty() && isPathSeparator(path.back());
}

bool beginsWithPathPrefix(QStringView path, QStringView prefix, Qt::CaseSensitivity cs) {
    if (prefix.isEmpty() || !path.startsWith(prefix, cs))
        return false;
    return path.size() == prefix.size() || endsWithPathSeparator(prefix) || isPathSeparator(path[prefix.size()]);
}

QString withSingleForwardSlashes(QStringView path, bool keepLeadingPair) {
    QString result;
    result.reserve(path.size());
    qsizetype index = 0;
    if (keepLeadingPair && path.size() >= 2 && isPathSeparator(path[0]) && isPathSeparator(path[1])) {
        result += u"//";
        index = 2;
        while (index < path.size() && isPathSeparator(path[index]))
            ++index;
    }
    for (; index < path.size(); ++index) {
        const QChar c = path[index];
        if (!isPathSeparator(c))
            result += c;
        else if (!result.endsWith(u'/'))
            result += u'/';
    }
    return result;
}

} // namespace quenfor
