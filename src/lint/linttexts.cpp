#include "lint/linttexts.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

QString findingCountText(qsizetype count) {
    if (count == 0)
        return QString::fromUtf16(kNoFindings);
    if (count == 1)
        return u"1 Befund"_s;
    return u"%1 Befunde"_s.arg(QLocale(QLocale::German).toString(count));
}

QString lintProgressText(int percent) {
    return u"Prüfe ... %1 %"_s.arg(percent);
}

void appendShownText(QString& out, QStringView text, qsizetype maxLength) {
    const bool cut = text.size() > maxLength;
    if (cut)
        text = text.first(maxLength);
    for (const QChar c : text) {
        if (c.unicode() < 0x20) {
            out += u'^';
            out += QChar(c.unicode() + 0x40);
        } else if (c.unicode() == 0x7f) {
            out += u"^?"_s;
        } else {
            out += c;
        }
    }
    if (cut)
        out += u"..."_s;
}

QString shownText(QStringView text, qsizetype maxLength) {
    QString out;
    out.reserve(std::min(text.size(), maxLength) + 4);
    appendShownText(out, text, maxLength);
    return out;
}

} // namespace quenfor
