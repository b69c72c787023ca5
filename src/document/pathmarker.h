#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// A clicked line that is a folder path (search.pro lines are, with or without enclosing double
// quotes) gets a marker telling whether the folder exists.
struct PathMarker {
    enum class State { NotAPath, Exists, Missing };
    State state = State::NotAPath;
    QString text; // "ok." or "Verzeichnis nicht vorhanden !"
};

// The line without its enclosing double quotes, when it is an absolute path (a drive letter,
// a network path \\server or a POSIX path); empty otherwise.
QString pathOfLine(QStringView line);

PathMarker pathMarkerFor(QStringView line);

// The value of an option line when it names an existing folder ("pro_library_dir C:\lib"),
// for the small path display beside the explanation; empty otherwise.
QString optionValueFolder(QStringView line);

} // namespace quenfor
