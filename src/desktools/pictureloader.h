#pragma once

#include <QString>

#include <optional>

namespace quenfor {

// The picture viewer's loader. The rules (name, size, type, which reader, every failure text)
// live here; the decoding itself sits behind PictureDecoder, so that this library needs no
// picture classes and the rules can be tried with a stand-in decoder.

// The steps of the full reader, each with its own failure text: starting the library, the bitmap
// from the file (the header is read), the bitmap handle (the pixels are decoded), the picture
// object (the pixels become a displayable picture).
enum class ReadStep { Startup, Bitmap, Handle, Picture };

// Why a step failed, in the image readers' own terms.
enum class ReadError {
    Unknown,
    FileNotFound,
    AccessDenied,      // the file could not be opened or read
    UnsupportedFormat, // no reader recognises the content (a broken header)
    InvalidData,       // the header was recognised but the data is broken or too large
    OutOfMemory,       // the decoded picture could not be made displayable
    ReaderMissing,     // no reader for the type is installed
};

struct ReadFailure {
    ReadStep step = ReadStep::Bitmap;
    ReadError error = ReadError::Unknown;
};

class PictureDecoder {
public:
    virtual ~PictureDecoder() = default;
    // Takes the picture on the clipboard; false when it holds none.
    virtual bool takeClipboardPicture() = 0;
    // The plain loader: true when the file could be read as a picture.
    virtual bool loadPlain(const QString& path) = 0;
    // The full reader: nothing on success, else the step that failed and why.
    virtual std::optional<ReadFailure> readFull(const QString& path) = 0;
};

// Status codes of the picture library (GDI+), whose German texts the viewer shows.
enum class GdiplusStatus {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    InsufficientBuffer = 5,
    NotImplemented = 6,
    Win32Error = 7,
    WrongState = 8,
    Aborted = 9,
    FileNotFound = 10,
    ValueOverflow = 11,
    AccessDenied = 12,
    UnknownImageFormat = 13,
    FontFamilyNotFound = 14,
    FontStyleNotFound = 15,
    NotTrueTypeFont = 16,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
    PropertyNotFound = 19,
    PropertyNotSupported = 20,
};

// The German text of a status code; codes without a text give an empty text.
QString gdiplusStatusText(int status);
GdiplusStatus gdiplusStatusOf(ReadError error);

// The message of a failed step: for the start the status text, CR LF and "Initialisierung
// scheitert"; for the other steps the step's text, CR LF and the status text.
QString readFailureText(const ReadFailure& failure);

// Loads the named picture into the decoder. The name is trimmed; an empty name takes the picture
// from the clipboard. preferFullReader sends .bmp, .dib and .rle to the full reader. Returns the
// error text, empty on success; after a failure the decoder's picture is not to be used.
QString loadPicture(const QString& name, bool preferFullReader, PictureDecoder& decoder);

} // namespace quenfor
