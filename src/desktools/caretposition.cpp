#include "desktools/caretposition.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

LineColumn lineColumnAt(QStringView text, qsizetype caret) {
    caret = std::clamp<qsizetype>(caret, 0, text.size());
    LineColumn place;
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < caret; ++i) {
        const QChar c = text[i];
        if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            if (i + 1 == caret)
                break; // between CR and LF: still the line the pair ends
            ++i;
        } else if (c != u'\r' && c != u'\n') {
            continue;
        }
        ++place.line;
        lineStart = i + 1;
    }
    place.column = caret - lineStart + 1;
    return place;
}

QString lineColumnText(const LineColumn& place) {
    return u"Zeile %1, Spalte %2"_s.arg(place.line).arg(place.column);
}

} // namespace quenfor
