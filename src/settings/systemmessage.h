#pragma once

#include <QString>

namespace quenfor {

// The operating system's own message for an error code, in the user's language; empty when the
// system knows no message for the code. One implementation file per platform.
QString systemMessage(int code);

} // namespace quenfor
