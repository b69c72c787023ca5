#pragma once

#include <QString>

namespace quenfor {

// The text for a system error code as the reset forms it: the system's message when it has one,
// otherwise "Unbekannter Windows-Fehler: &H" and the code in upper-case hexadecimal, and for
// code 0 without a message the empty text.
QString systemErrorText(int code);

// The same rule on a message already fetched (empty: the system has none).
QString formatSystemErrorText(int code, const QString& systemMessage);

} // namespace quenfor
