#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace quenfor {

// Which reader a picture file goes to, decided by its type.
enum class PictureKind {
    Bitmap,    // .bmp .dib .rle: the plain loader, or the full reader when the caller prefers it
    PlainOnly, // .ico .cur .emf .wmf: always the plain loader
    FullOnly,  // .gif .png .tif .tiff .jpe .jpg .jpeg .jfif: always the full reader
};

// The type of a file name: its last 4 and last 5 characters in lower case are both tried, so
// "Foto.JPEG" counts and "xtiff" does not. Nothing for any other name.
std::optional<PictureKind> pictureKindOf(QStringView name);
bool isPictureFileName(QStringView name);

// The accepted types as ".bmp" ... ".jfif", in the viewer's order.
QStringList pictureTypes();

// The name under which the image readers know the format a type promises ("tiff" for ".tif",
// "jpeg" for ".jfif"); empty for a name of no accepted type.
QByteArray readerFormatOf(QStringView name);

} // namespace quenfor
