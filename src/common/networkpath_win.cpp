#include "common/networkpath.h"

#include "common/drives.h"
#include "common/errors.h"
#include "common/pathseparators.h"

#include <QDir>

#include <windows.h>
#include <winnetwk.h>

#include <array>
#include <optional>
#include <string>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The network name of a drive "X:", or nothing when the drive is not a network connection.
std::optional<QString> connectionOf(const QString& drive) {
    std::array<wchar_t, 512> remote{};
    DWORD length = static_cast<DWORD>(remote.size());
    const std::wstring local = drive.toStdWString();
    if (WNetGetConnectionW(local.c_str(), remote.data(), &length) != NO_ERROR)
        return std::nullopt;
    return QString::fromWCharArray(remote.data()); // up to the first NUL
}

} // namespace

QString driveToNetworkPath(const QString& path, bool quiet) {
    // "X" and "X:" both stand for the drive's root.
    QString normalised = QDir::toNativeSeparators(path);
    if (normalised.size() == 1)
        normalised += u':';
    if (normalised.size() == 2 && normalised[1] == u':')
        normalised += u'\\';
    const std::optional<QString> name = normalised.size() >= 2 ? connectionOf(normalised.left(2)) : std::nullopt;
    if (name)
        return *name + normalised.mid(2);
    if (quiet)
        return path;
    throw invalidArgumentError(u"driveToNetworkPath"_s);
}

QString networkToDrivePath(const QString& path, bool quiet) {
    const QString wanted = QDir::toNativeSeparators(path);
    const QStringList roots = logicalDrives();
    for (const QString& root : roots) {
        const QString drive = root.left(2);
        const std::optional<QString> name = connectionOf(drive);
        if (name && beginsWithPathPrefix(wanted, *name, Qt::CaseInsensitive)) {
            const QString rest = wanted.mid(name->size());
            // The share itself is the drive's root.
            return drive + (rest.isEmpty() ? u"\\"_s : rest);
        }
    }
    if (quiet)
        return path;
    throw invalidArgumentError(u"networkToDrivePath"_s);
}

} // namespace quenfor
