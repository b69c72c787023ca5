#include "ui/desktools/qtpicturedecoder.h"

#include "desktools/picturetypes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>

namespace quenfor {

namespace {

// Every reader is told to look at the content first: the name may promise something else, and Qt
// takes ".dib" for a bitmap without its file header, while .dib files on disk have one.

ReadError readErrorOf(const QImageReader& reader) {
    switch (reader.error()) {
    case QImageReader::FileNotFoundError:
        return ReadError::FileNotFound;
    case QImageReader::DeviceError:
        return ReadError::AccessDenied;
    case QImageReader::UnsupportedFormatError:
        return ReadError::UnsupportedFormat;
    case QImageReader::InvalidDataError:
        return ReadError::InvalidData;
    case QImageReader::UnknownError:
        break;
    }
    return ReadError::Unknown;
}

// A file that no reader understood may simply lack the reader its type needs (tif without the
// image-formats plugins): that is a missing library, not a broken file.
ReadFailure failureOf(ReadStep step, const QImageReader& reader, const QString& path) {
    if (reader.error() == QImageReader::UnsupportedFormatError &&
        !QImageReader::supportedImageFormats().contains(readerFormatOf(path)))
        return {ReadStep::Startup, ReadError::ReaderMissing};
    return {step, readErrorOf(reader)};
}

} // namespace

bool QtPictureDecoder::takeClipboardPicture() {
    const QPixmap pixmap = QGuiApplication::clipboard()->pixmap();
    if (pixmap.isNull())
        return false;
    m_picture = pixmap;
    return true;
}

bool QtPictureDecoder::loadPlain(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    if (image.isNull())
        return false;
    const QPixmap pixmap = QPixmap::fromImage(image);
    if (pixmap.isNull())
        return false;
    m_picture = pixmap;
    return true;
}

std::optional<ReadFailure> QtPictureDecoder::readFull(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    // Photographs carry their orientation; show them upright.
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return failureOf(ReadStep::Bitmap, reader, path);
    const QImage image = reader.read();
    if (image.isNull())
        return failureOf(ReadStep::Handle, reader, path);
    const QPixmap pixmap = QPixmap::fromImage(image);
    if (pixmap.isNull())
        return ReadFailure{ReadStep::Picture, ReadError::OutOfMemory};
    m_picture = pixmap;
    return std::nullopt;
}

} // namespace quenfor
