#include "desktools/decimalnumber.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString withComma(QString text) {
    text.replace(u'.', u',');
    // Rounding a tiny negative value can leave a minus in front of nothing but zeros.
    static const QRegularExpression negativeZero(u"^-0(,0*)?$"_s);
    if (negativeZero.match(text).hasMatch())
        return u"0"_s;
    return text;
}

} // namespace

std::optional<double> parseDecimal(const QString& text) {
    static const QRegularExpression number(u"^[+-]?(\\d+([.,]\\d*)?|[.,]\\d+)$"_s);
    const QString trimmed = text.trimmed();
    if (!number.match(trimmed).hasMatch())
        return std::nullopt;
    bool ok = false;
    const double value = QString(trimmed).replace(u',', u'.').toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

QString formatDecimal(double value, int decimals) {
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return withComma(text);
}

QString formatGeneral(double value) {
    return withComma(QString::number(value, 'g', 15));
}

} // namespace quenfor
