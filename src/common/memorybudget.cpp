#include "common/memorybudget.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The address space the process uses now, from the system's own account of it.
qint64 usedAddressSpace() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmSize:"))
            return line.mid(7).trimmed().split(' ').value(0).toLongLong() * 1024;
    }
    return 0;
}

constexpr qint64 kMiB = 1024 * 1024;

} // namespace

QString memoryShortfall(qint64 bytes, qint64 limit, qint64 used) {
    if (limit < 0)
        return {};
    const qint64 free = limit - used;
    if (bytes <= free)
        return {};
    return u"Der Arbeitsspeicher reicht dafür nicht aus: etwa %1 MB werden gebraucht, die Grenze dieses Prozesses "
           u"lässt noch %2 MB zu. Es wurde nichts geschrieben."_s.arg(bytes / kMiB)
               .arg(qMax<qint64>(free, 0) / kMiB);
}

QString memoryShortfallFor(qint64 bytes) {
#ifdef Q_OS_UNIX
    rlimit limit{};
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return {};
    return memoryShortfall(bytes, qint64(limit.rlim_cur), usedAddressSpace());
#else
    Q_UNUSED(bytes);
    return {};
#endif
}

} // namespace quenfor
