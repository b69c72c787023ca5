#include "common/mountednetworkpath.h"

#include "common/errors.h"
#include "common/pathseparators.h"

#include <QStringList>

#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

bool isNetworkFileSystem(const QString& type) {
    static const QStringList types{u"cifs"_s, u"smb3"_s, u"smbfs"_s, u"nfs"_s, u"nfs4"_s};
    return types.contains(type);
}

QString withoutTrailingSeparators(QString path, qsizetype keep) {
    while (path.size() > keep && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

QString cleanLocalPath(QStringView path) {
    return withoutTrailingSeparators(withSingleForwardSlashes(path, false), 1);
}

// The //server/share form of a network mount's source, or nothing for a source of another form.
std::optional<QString> networkNameOf(const MountEntry& mount) {
    QString name = mount.source;
    if (mount.type.startsWith(u"nfs")) {
        const qsizetype colon = name.indexOf(u":/");
        if (colon <= 0)
            return std::nullopt;
        name = u"//"_s + name.left(colon) + name.mid(colon + 1);
    }
    name = withoutTrailingSeparators(withSingleForwardSlashes(name, true), 2);
    if (!name.startsWith(u"//") || name.size() == 2)
        return std::nullopt;
    return name;
}

// base followed by the part of path behind prefix, with exactly one "/" between them.
QString rebased(const QString& base, QStringView path, QStringView prefix) {
    QStringView rest = path.mid(prefix.size());
    if (rest.startsWith(u'/'))
        rest = rest.mid(1);
    QString result = base;
    if (!rest.isEmpty()) {
        if (!result.endsWith(u'/'))
            result += u'/';
        result += rest;
    }
    return result;
}

} // namespace

QString driveToNetworkPath(const QString& path, bool quiet, const QList<MountEntry>& mounts) {
    const QString local = withSingleForwardSlashes(path, false);
    const MountEntry* holder = nullptr;
    QString holderPoint;
    for (const MountEntry& mount : mounts) {
        const QString point = cleanLocalPath(mount.mountPoint);
        // On equal depth the later mount lies on top and hides the earlier one.
        if (beginsWithPathPrefix(local, point, Qt::CaseSensitive) &&
            (holder == nullptr || point.size() >= holderPoint.size())) {
            holder = &mount;
            holderPoint = point;
        }
    }
    if (holder != nullptr && isNetworkFileSystem(holder->type)) {
        if (const std::optional<QString> name = networkNameOf(*holder))
            return rebased(*name, local, holderPoint);
    }
    if (quiet)
        return path;
    throw invalidArgumentError(u"driveToNetworkPath"_s);
}

QString networkToDrivePath(const QString& path, bool quiet, const QList<MountEntry>& mounts) {
    const QString wanted = withSingleForwardSlashes(path, true);
    for (const MountEntry& mount : mounts) {
        if (!isNetworkFileSystem(mount.type))
            continue;
        const std::optional<QString> name = networkNameOf(mount);
        if (name && beginsWithPathPrefix(wanted, *name, Qt::CaseInsensitive))
            return rebased(cleanLocalPath(mount.mountPoint), wanted, *name);
    }
    if (quiet)
        return path;
    throw invalidArgumentError(u"networkToDrivePath"_s);
}

} // namespace quenfor
