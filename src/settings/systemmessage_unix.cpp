#include "settings/systemmessage.h"

#include <QByteArrayView>

#include <cstring>

namespace quenfor {

namespace {

// glibc declares the GNU strerror_r, which returns the text; other systems the POSIX one, which
// fills the buffer and returns 0. Overloads take whichever the headers declare.
[[maybe_unused]] const char* messageOf(int result, const char* buffer) {
    return result == 0 ? buffer : nullptr;
}

[[maybe_unused]] const char* messageOf(const char* result, const char* /*buffer*/) {
    return result;
}

// For an unknown code the C library makes up a text ("Unknown error 134"); that is no message.
bool isKnownCode([[maybe_unused]] int code, [[maybe_unused]] const char* message) {
#if defined(__GLIBC__) && (__GLIBC__ > 2 || (__GLIBC__ == 2 && __GLIBC_MINOR__ >= 32))
    // The name table does not depend on the locale, unlike the made-up text.
    return strerrorname_np(code) != nullptr;
#else
    return !QByteArrayView(message).startsWith("Unknown error");
#endif
}

} // namespace

QString systemMessage(int code) {
    char buffer[256] = {};
    const char* message = messageOf(strerror_r(code, buffer, sizeof buffer), buffer);
    if (message == nullptr || *message == '\0' || !isKnownCode(code, message)) {
        return {};
    }
    return QString::fromLocal8Bit(message);
}

} // namespace quenfor
