#pragma once

#include "common/mounttable.h"

#include <QList>
#include <QString>

#include <functional>

namespace quenfor {

// The two conversions of the path converter. A conversion raises QuenforError 5 for a path it
// cannot convert (see networkpath.h); with quiet set it returns the path unchanged.
struct PathConverters {
    std::function<QString(const QString& path, bool quiet)> toNetwork;
    std::function<QString(const QString& path, bool quiet)> toDrive;

    // The machine's own drives and mounts.
    static PathConverters system();
    // A fixed mount table, for tests and for trying out a table.
    static PathConverters withMounts(QList<MountEntry> mounts);
};

enum class PathDirection { ToNetwork, ToDrive };

struct PathConversion {
    bool converted = false;
    QString path;    // the converted path, or the input unchanged when it could not be converted
    QString message; // German, for the user, when it could not be converted
};

// Converts a path typed or pasted by the user. Blanks around it and one pair of enclosing double
// quotes (as a file manager's "copy as path" gives) are removed first. Error 5 becomes a message
// and the unchanged path, as the quiet flag gives it.
PathConversion convertPath(const QString& input, PathDirection direction, const PathConverters& converters);

// The way a path most likely wants to go: a network path (two leading separators) to a drive,
// every other path to the network.
PathDirection naturalDirection(const QString& input);

// The input as the conversion sees it: trimmed, without enclosing double quotes.
QString cleanedPathInput(const QString& input);

} // namespace quenfor
