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
    // The 8.3 short form and the long form of an existing path; empty when it cannot be resolved.
    std::function<QString(const QString& path)> toShort;
    std::function<QString(const QString& path)> toLong;
    // Whether short and long names differ here at all; without them the two are not offered.
    bool shortNames = false;

    // The machine's own drives and mounts.
    static PathConverters system();
    // A fixed mount table, for tests and for trying out a table.
    static PathConverters withMounts(QList<MountEntry> mounts);
};

enum class PathDirection { ToNetwork, ToDrive, ToShort, ToLong };

struct PathConversion {
    bool converted = false;
    QString path;    // the converted path, or the input unchanged when it could not be converted
    QString message; // German, for the user, when it could not be converted
};

// Converts a path typed or pasted by the user. Blanks around it and one pair of enclosing double
// quotes (as a file manager's "copy as path" gives) are removed first. Error 5 becomes a message
// and the unchanged path, as the quiet flag gives it.
PathConversion convertPath(const QString& input, PathDirection direction, const PathConverters& converters);

// Why the short (8.3) and long name forms are not offered on a system without short names.
QString shortNamesUnavailableText();

// The way a path most likely wants to go: a network path (two leading separators) to a drive,
// every other path to the network.
PathDirection naturalDirection(const QString& input);

// The input as the conversion sees it: trimmed, without enclosing double quotes.
QString cleanedPathInput(const QString& input);

} // namespace quenfor
