#include "desktools/shotrectangle.h"

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Far beyond any screen, yet small enough that sums of two values stay in an int.
constexpr double kLargest = 1000000.0;

struct FieldValue {
    std::optional<int> value;
    QString error;
};

FieldValue readField(const QString& field, const QString& text) {
    if (text.isEmpty())
        return {std::nullopt, u"Bitte im Feld %1 eine Zahl eingeben."_s.arg(field)};
    const qsizetype comma = text.indexOf(u',');
    const QStringView whole = QStringView(text).left(comma < 0 ? text.size() : comma);
    const QStringView fraction = comma < 0 ? QStringView() : QStringView(text).mid(comma + 1);
    bool digitsOnly = !(whole.isEmpty() && fraction.isEmpty());
    for (const QStringView part : {whole, fraction}) {
        for (const QChar c : part)
            digitsOnly = digitsOnly && c.isDigit() && c.unicode() < 128;
    }
    if (!digitsOnly)
        return {std::nullopt, u"Im Feld %1 steht keine brauchbare Zahl: \"%2\"."_s.arg(field, text)};
    // Leading zeros and long fractions cost nothing: the value is read as a decimal number.
    const QString plain =
        (whole.isEmpty() ? u"0"_s : whole.toString()) + u'.' + (fraction.isEmpty() ? u"0"_s : fraction.toString());
    const double number = plain.toDouble();
    if (!(number < kLargest))
        return {std::nullopt, u"Der Wert im Feld %1 ist zu groß: \"%2\"."_s.arg(field, text)};
    return {int(std::floor(number + 0.5)), {}};
}

} // namespace

ShotRectangle parseShotRectangle(const QString& x, const QString& y, const QString& width, const QString& height) {
    const FieldValue values[] = {readField(u"X"_s, x), readField(u"Y"_s, y), readField(u"BREITE"_s, width),
                                 readField(u"HOEHE"_s, height)};
    for (const FieldValue& field : values) {
        if (!field.value)
            return {{}, field.error};
    }
    if (*values[2].value < 1)
        return {{}, u"BREITE muss mindestens 1 Pixel betragen."_s};
    if (*values[3].value < 1)
        return {{}, u"HOEHE muss mindestens 1 Pixel betragen."_s};
    return {QRect(*values[0].value, *values[1].value, *values[2].value, *values[3].value), {}};
}

VisibleShot visiblePartOfShot(const QRect& wanted, const QRect& screen) {
    const QRect visible = wanted.intersected(screen);
    if (visible.isEmpty())
        return {{},
                u"Der Bildausschnitt liegt außerhalb des Bildschirms (%1 x %2 Pixel)."_s.arg(screen.width())
                    .arg(screen.height())};
    if (visible == wanted)
        return {visible, {}};
    return {visible,
            u"Bildausschnitt auf den Bildschirm gekürzt: %1 x %2 Pixel."_s.arg(visible.width()).arg(visible.height())};
}

} // namespace quenfor
