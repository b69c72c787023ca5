#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace quenfor {

// A drawing keeps the name of its first model in its first line, starting at this character
// (counted from 1). Drawings of older releases wrote a long fixed header there.
inline constexpr qsizetype kModelNamePosition = 725;

// How far reading a drawing got.
enum class DrawingRead {
    Read,        // the first line reached the model name position
    ShortHeader, // the first line ends before the position: no model name
    Unreadable,  // the file exists but could not be opened or read
    NotAFile,    // a pipe, socket or device: never opened for reading
    Missing,     // no such file
};

struct DrawingCheck {
    QString path;
    QString drawingName; // the file name up to its first dot, upper case
    QString modelName;   // what the first line holds at the position, upper case, filler dropped
    bool matches = false;
    DrawingRead read = DrawingRead::Read;
    qsizetype headerLength = -1; // with ShortHeader: the characters of the first line
    QStringList listedModels;    // the drawing's own model list, when asked for (drawingmodellist.h)
};

// "bracket.drw.3" (or a path ending in it) gives "BRACKET"; "a.b.drw" gives "A".
QString drawingNameOf(const QString& path);

// The model name of a drawing from its first line (without line end). The slice starting at
// kModelNamePosition is as long as the drawing's name plus one, so a longer model name shows;
// only the first fileNameLength characters of the slice count (the full file name's length), and
// line feed, carriage return, space and ! < = > ? @ are dropped. The result is upper case.
QString modelNameFromHeader(QStringView firstLine, qsizetype drawingNameLength, qsizetype fileNameLength);

// Reads only the start of the file's first line (up to the first CR or LF, at most as far as the
// slice reaches), so huge or binary files cost no more than a few hundred bytes. Never fails:
// a missing, unreadable, empty or short file gives an empty model name and no match.
// codepage decodes the bytes (names with umlauts); an unknown one falls back to Latin-1.
DrawingCheck checkDrawing(const QString& path, const QString& codepage = QStringLiteral("windows-1252"));

// The status line after a check: "OK! ..." on a match, "Achtung : ... NICHT ..." otherwise.
QString drawingCheckStatusText(const DrawingCheck& check);
// Why no model name could be read (short first line, unreadable, missing); empty after a read.
QString drawingCheckNote(const DrawingCheck& check);

// Upper case character by character, so the text keeps its length ("ß" stays one character)
// and both names are compared the same way.
QString upperCaseKeepingLength(QStringView text);

} // namespace quenfor
