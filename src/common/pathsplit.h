#pragma once

#include <QString>
#include <QStringView>

namespace quenfor {

// The parts of a path. folder keeps its separators ("\w\" of "C:\w\a.prt"), so that
// drive + folder + name + extension gives the path back up to the versions cut off the end.
struct PathParts {
    QString drive;     // "C:" when a letter and ":" begin the path, else empty
    QString folder;    // up to and including the last separator
    QString name;      // the file name before its first dot
    QString extension; // the first extension with its dot: ".prt" of "bracket.prt.3"
};

// Which characters end a folder: any separator (paths written in configuration files come from
// Windows) or only this system's own (names and paths read from the disk).
enum class Separators { Any, Native };

PathParts splitPath(QStringView path, Separators separators = Separators::Any);

// A letter and ":" at the start: "C:". Only a letter makes a drive, so "/:a.prt" (a file ":a.prt"
// in the root of a Unix file system) keeps its folder.
bool startsWithDrive(QStringView path);

// folder + native separator + name; no separator is added when the folder already ends in one
// (a root) or is empty.
QString joinFolderAndName(QStringView folder, QStringView name);

} // namespace quenfor
