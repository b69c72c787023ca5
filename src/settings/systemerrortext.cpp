#include "settings/systemerrortext.h"

#include "settings/systemmessage.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString systemErrorText(int code) {
    return formatSystemErrorText(code, systemMessage(code));
}

QString formatSystemErrorText(int code, const QString& systemMessage) {
    if (!systemMessage.isEmpty()) {
        return systemMessage;
    }
    if (code == 0) {
        return {};
    }
    // Codes are 32-bit unsigned on Windows: a negative int shows as its two's complement, FFFFFFFB.
    return u"Unbekannter Windows-Fehler: &H"_s + QString::number(static_cast<quint32>(code), 16).toUpper();
}

} // namespace quenfor
