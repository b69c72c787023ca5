#include "common/pathconversion.h"

#include "common/errors.h"
#include "common/mountednetworkpath.h"
#include "common/networkpath.h"
#include "common/pathnames.h"
#include "common/pathseparators.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

PathConverters PathConverters::system() {
    return {[](const QString& path, bool quiet) { return driveToNetworkPath(path, quiet); },
            [](const QString& path, bool quiet) { return networkToDrivePath(path, quiet); }, &shortPathName,
            &longPathName, systemKeepsShortNames()};
}

PathConverters PathConverters::withMounts(QList<MountEntry> mounts) {
    return {[mounts](const QString& path, bool quiet) { return driveToNetworkPath(path, quiet, mounts); },
            [mounts = std::move(mounts)](const QString& path, bool quiet) {
                return networkToDrivePath(path, quiet, mounts);
            },
            &shortPathName, &longPathName, systemKeepsShortNames()};
}

QString shortNamesUnavailableText() {
    return u"Kurze (8.3) und lange Namen gibt es nur unter Windows. Hier hat jede Datei und jeder Ordner nur "
           "einen Namen; beide Umwandlungen gäben den Pfad unverändert zurück."_s;
}

namespace {

// Short and long names are the file system's, so only an existing path has them.
void convertName(PathConversion& result, PathDirection direction, const PathConverters& converters) {
    if (!converters.shortNames) {
        result.message = shortNamesUnavailableText();
        return;
    }
    const QString converted =
        direction == PathDirection::ToShort ? converters.toShort(result.path) : converters.toLong(result.path);
    if (converted.isEmpty()) {
        result.message = u"Den Pfad \"%1\" gibt es nicht, oder er kann nicht gelesen werden; kurze und lange "
                         "Namen haben nur vorhandene Dateien und Ordner. Er bleibt unverändert."_s.arg(result.path);
        return;
    }
    result.path = converted;
    result.converted = true;
}

} // namespace

QString cleanedPathInput(const QString& input) {
    QString path = input.trimmed();
    if (path.size() >= 2 && path.startsWith(u'"') && path.endsWith(u'"'))
        path = path.mid(1, path.size() - 2).trimmed();
    return path;
}

PathDirection naturalDirection(const QString& input) {
    const QString path = cleanedPathInput(input);
    const bool network = path.size() >= 2 && isPathSeparator(path[0]) && isPathSeparator(path[1]);
    return network ? PathDirection::ToDrive : PathDirection::ToNetwork;
}

PathConversion convertPath(const QString& input, PathDirection direction, const PathConverters& converters) {
    PathConversion result;
    result.path = cleanedPathInput(input);
    if (result.path.isEmpty()) {
        result.message = u"Bitte geben Sie zuerst einen Pfad ein."_s;
        return result;
    }
    if (direction == PathDirection::ToShort || direction == PathDirection::ToLong) {
        convertName(result, direction, converters);
        return result;
    }
    const auto& convert = direction == PathDirection::ToNetwork ? converters.toNetwork : converters.toDrive;
    try {
        result.path = convert(result.path, false);
        result.converted = true;
    } catch (const QuenforError& error) {
        if (error.number() != invalidArgumentErrorNumber)
            throw;
        result.message = direction == PathDirection::ToNetwork
                             ? u"Der Pfad \"%1\" liegt auf keinem Netzlaufwerk und in keiner eingehängten "
                               "Netzwerkfreigabe. Er bleibt unverändert."_s.arg(result.path)
                             : u"Die Netzwerkfreigabe des Pfades \"%1\" ist mit keinem Laufwerk verbunden und "
                               "nirgends eingehängt. Der Pfad bleibt unverändert."_s.arg(result.path);
    }
    return result;
}

} // namespace quenfor
