#pragma once

#include <QString>

#include <optional>

namespace quenfor {

// Numbers as German users type and read them in the small calculators. The decimal separator is
// the comma; a point is taken as the same separator, since number pads and other programs give
// one. There are no thousands separators and no exponents, so "1.000" is one, not a thousand.
// Blanks around the number are ignored; an empty text is no number.
std::optional<double> parseDecimal(const QString& text);

// At most `decimals` places behind the comma, trailing zeros dropped, never "-0".
QString formatDecimal(double value, int decimals);

// A result as a calculator shows it: up to 15 significant digits, decimal comma.
QString formatGeneral(double value);

} // namespace quenfor
