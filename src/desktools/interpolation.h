#pragma once

#include <QString>

namespace quenfor {

// The five inputs of the interpolation window as typed.
struct InterpolationInput {
    QString x1, y1, x2, y2, a;
};

// b, or the reason there is none (a field empty or not a number, x1 equal to x2, an overflow).
struct InterpolationResult {
    bool ok = false;
    double value = 0;
    QString text; // b as shown: up to 15 significant digits, decimal comma
    QString error;
};

// b = ((a − x2) + (y1 − y2)) ÷ (x1 − x2) + y2. The two differences are added, not multiplied as in
// the textbook; users rely on the tool's results as they have always been.
double interpolationFormula(double x1, double y1, double x2, double y2, double a);

// Calculates only when all five fields are filled; an empty one is named in the error.
InterpolationResult interpolate(const InterpolationInput& input);

// The input filter of the five fields, applied to every edit (typing and pasting alike): a "."
// becomes ",", any character other than the digits, "," and "." is dropped. `cursor` follows
// the kept characters; `refused` tells that something was dropped.
struct FilteredNumberText {
    QString text;
    int cursor = 0;
    bool refused = false;
};
FilteredNumberText filterNumberText(const QString& text, int cursor);

// "Bitte nur Zahlen eingeben.": shown when the filter dropped a character.
QString onlyNumbersMessage();

} // namespace quenfor
