#include "settings/systemmessage.h"

#include <windows.h>

namespace quenfor {

QString systemMessage(int code) {
    constexpr DWORD bufferSize = 256;
    wchar_t buffer[bufferSize];
    // MAX_WIDTH_MASK turns the line breaks of the text into blanks, so it fits one label line.
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                       nullptr, static_cast<DWORD>(code), LANG_USER_DEFAULT, buffer, bufferSize, nullptr);
    return QString::fromWCharArray(buffer, static_cast<qsizetype>(length));
}

} // namespace quenfor
