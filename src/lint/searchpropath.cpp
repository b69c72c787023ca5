#include "lint/searchpropath.h"

namespace quenfor {

bool namesFolder(const LintLine& line) {
    return line.kind != LineKind::Comment && line.kind != LineKind::Blank;
}

SearchProPath searchProPathOf(QStringView line) {
    QStringView text = line.trimmed();
    SearchProPath result;
    if (!text.startsWith(u'"')) {
        result.path = text;
        return result;
    }
    result.quoted = true;
    const qsizetype close = text.indexOf(u'"', 1);
    if (close < 0) {
        result.closed = false;
        result.path = text.sliced(1).trimmed();
        return result;
    }
    result.path = text.sliced(1, close - 1).trimmed();
    result.trailing = text.sliced(close + 1).trimmed();
    return result;
}

QString folderKey(QStringView path) {
    QString key = path.toString().toLower();
    key.replace(u'/', u'\\');
    while (key.size() > 1 && key.endsWith(u'\\') && !(key.size() == 3 && key[1] == u':'))
        key.chop(1);
    return key;
}

} // namespace quenfor
