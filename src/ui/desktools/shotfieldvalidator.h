#pragma once

#include <QValidator>

namespace quenfor {

// Keeps X, Y, BREITE and HOEHE of the screenshot window to digits and the decimal comma: a typed
// or pasted letter changes nothing.
class ShotFieldValidator : public QValidator {
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override;
};

} // namespace quenfor
