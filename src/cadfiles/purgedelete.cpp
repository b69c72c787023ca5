#include "cadfiles/purgedelete.h"

#include "common/rawfilenames.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace quenfor {

QString DeleteReport::summary() const {
    QString text = u"%1 gelöscht"_s.arg(deleted.size());
    if (!vanished.isEmpty())
        text += u", %1 nicht mehr vorhanden"_s.arg(vanished.size());
    if (!failed.isEmpty())
        text += u", %1 nicht löschbar"_s.arg(failed.size());
    return text;
}

namespace {

bool isOwnRegularFile(const QFileInfo& info) {
    return info.exists() && !info.isSymLink() && info.isFile();
}

} // namespace

bool clearReadOnly(const QString& path) {
    const QFileInfo info(path);
    if (!isOwnRegularFile(info))
        return false;
    const QFile::Permissions permissions = info.permissions();
    if (permissions & QFile::WriteOwner)
        return true;
    return QFile::setPermissions(path, permissions | QFile::WriteOwner | QFile::WriteUser);
}

#ifdef Q_OS_UNIX
// Names are bytes here (see rawfilenames.h); deleting needs no write permission on the file.
DeleteReport deleteFiles(const QStringList& paths, const std::function<void()>& afterEach) {
    DeleteReport report;
    for (const QString& path : paths) {
        const QByteArray bytes = encodeFileName(path);
        struct stat st {};
        if (::lstat(bytes.constData(), &st) != 0 || !S_ISREG(st.st_mode))
            report.vanished.append(path);
        else if (::unlink(bytes.constData()) == 0)
            report.deleted.append(path);
        else
            (errno == ENOENT ? report.vanished : report.failed).append(path);
        if (afterEach)
            afterEach();
    }
    return report;
}
#else
DeleteReport deleteFiles(const QStringList& paths, const std::function<void()>& afterEach) {
    DeleteReport report;
    for (const QString& path : paths) {
        QFileInfo info(path);
        if (!isOwnRegularFile(info)) {
            report.vanished.append(path);
        } else {
            // A failure to clear the bit is not fatal: the delete itself tells whether it worked.
            clearReadOnly(path);
            if (QFile::remove(path)) {
                report.deleted.append(path);
            } else {
                info.refresh();
                (info.exists() || info.isSymLink() ? report.failed : report.vanished).append(path);
            }
        }
        if (afterEach)
            afterEach();
    }
    return report;
}
#endif

} // namespace quenfor
