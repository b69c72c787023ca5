#include "document/linesplit.h"

namespace quenfor {

QStringList splitLines(QStringView text) {
    QStringList lines;
    forEachLine(text.utf16(), text.size(),
                [&](qsizetype start, qsizetype length) { lines.append(text.mid(start, length).toString()); });
    return lines;
}

qsizetype offsetAfterLines(QStringView text, qsizetype count) {
    if (count <= 0)
        return 0;
    qsizetype seen = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r')
            continue;
        if (i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        if (++seen == count)
            return i + 1;
    }
    return text.size();
}

} // namespace quenfor
