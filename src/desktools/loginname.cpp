#include "desktools/loginname.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace quenfor {

QString loginName() {
#ifdef Q_OS_WIN
    wchar_t buffer[256] = {};
    DWORD size = 256;
    if (GetUserNameW(buffer, &size))
        return QString::fromWCharArray(buffer).trimmed();
    return qEnvironmentVariable("USERNAME").trimmed();
#else
    // The password database knows who owns the process even where USER is not set (cron, su).
    if (const passwd* entry = getpwuid(geteuid()); entry && entry->pw_name)
        return QString::fromLocal8Bit(entry->pw_name).trimmed();
    return qEnvironmentVariable("USER").trimmed();
#endif
}

} // namespace quenfor
