#include "desktools/interpolation.h"

#include "desktools/decimalnumber.h"

#include <QStringList>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

double interpolationFormula(double x1, double y1, double x2, double y2, double a) {
    return ((a - x2) + (y1 - y2)) / (x1 - x2) + y2;
}

InterpolationResult interpolate(const InterpolationInput& input) {
    const std::pair<QString, const QString*> fields[] = {
        {u"x1"_s, &input.x1}, {u"y1"_s, &input.y1}, {u"x2"_s, &input.x2}, {u"y2"_s, &input.y2}, {u"a"_s, &input.a},
    };
    InterpolationResult result;
    QStringList empty;
    for (const auto& [name, text] : fields) {
        if (text->trimmed().isEmpty())
            empty.append(name);
    }
    if (!empty.isEmpty()) {
        result.error = u"Bitte zuerst ausfüllen: %1."_s.arg(empty.join(u", "_s));
        return result;
    }
    double values[std::size(fields)] = {};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const std::optional<double> value = parseDecimal(*fields[i].second);
        if (!value) {
            result.error = u"Im Feld „%1“ steht keine Zahl: „%2“."_s.arg(fields[i].first, *fields[i].second);
            return result;
        }
        values[i] = *value;
    }
    const auto [x1, y1, x2, y2, a] = values;
    if (x1 == x2) {
        result.error = u"x1 und x2 sind gleich: durch x1 − x2 = 0 kann nicht geteilt werden."_s;
        return result;
    }
    const double b = interpolationFormula(x1, y1, x2, y2, a);
    if (!std::isfinite(b)) {
        result.error = u"Das Ergebnis ist zu groß, um es als Zahl anzuzeigen."_s;
        return result;
    }
    result.ok = true;
    result.value = b;
    result.text = formatGeneral(b);
    return result;
}

FilteredNumberText filterNumberText(const QString& text, int cursor) {
    FilteredNumberText result;
    result.cursor = cursor;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c >= u'0' && c <= u'9') {
            result.text.append(c);
        } else if (c == u',' || c == u'.') {
            result.text.append(u',');
        } else {
            result.refused = true;
            if (i < cursor)
                --result.cursor;
        }
    }
    return result;
}

QString onlyNumbersMessage() {
    return u"Bitte nur Zahlen eingeben."_s;
}

} // namespace quenfor
