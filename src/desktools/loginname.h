#pragma once

#include <QString>

namespace quenfor {

// The name the current user logged in with, trimmed; empty when the system does not tell.
QString loginName();

} // namespace quenfor
