#pragma once

#include "compare/effectiveconfig.h"

#include <QHash>
#include <QString>

namespace quenfor {

// Why a line of a file has no effect in the CAD system.
struct LineMark {
    enum class Kind { Locked, Overridden };
    Kind kind = Kind::Overridden;
    QString explanation; // German, for the line's tooltip
};

// The marks of one file's lines (by index from 0) in an effective configuration: lines whose
// value a config.sup keeps out, and lines a later line replaces. `sources` must be the ones the
// configuration was made from.
QHash<int, LineMark> lineMarksOf(const EffectiveConfig& config, const std::vector<ConfigSource>& sources, int file);

// For the status line: "config.sup C:\\firma\\config.sup: 2 Zeilen gesperrt, 1 Zeile überschrieben".
QString lineMarkSummary(const QString& supPath, const QHash<int, LineMark>& marks);

} // namespace quenfor
