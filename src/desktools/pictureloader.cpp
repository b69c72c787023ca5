#include "desktools/pictureloader.h"

#include "common/fileexists.h"
#include "common/regularfile.h"
#include "desktools/picturetypes.h"

#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A name shorter than this cannot be a path with a picture type.
constexpr qsizetype kShortestName = 5;
// Files below this size cannot hold a picture: even the smallest picture header is longer.
constexpr qint64 kSmallestPicture = 10;

} // namespace

QString gdiplusStatusText(int status) {
    static const std::array<QString, 21> texts{
        QString(),
        u"fehlerhafte Initialisierung"_s,
        u"Ungeeigneter Parameter"_s,
        u"Speichermangel"_s,
        u"GDIPlus ist noch beschäftigt"_s,
        u"Buffer zu klein"_s,
        QString(),
        u"Windows32-Fehler"_s,
        u"Falscher interner Zustand"_s,
        u"Abbruch der Operation"_s,
        u"Datei nicht gefunden"_s,
        u"Wert-Überlauf"_s,
        u"Zugriff verweigert"_s,
        u"unbekanntes Bildformat"_s,
        QString(),
        QString(),
        QString(),
        u"GDIPlus-Version wird nicht unterstützt"_s,
        u"Keine GDIPlus-Verbindung (GDIPLUS.dll eventuell nicht vorhanden)"_s,
        u"Eigenschaft nicht gefunden"_s,
        u"Eigenschaft wird nicht unterstützt"_s,
    };
    if (status < 0 || status >= int(texts.size()))
        return {};
    return texts[size_t(status)];
}

GdiplusStatus gdiplusStatusOf(ReadError error) {
    switch (error) {
    case ReadError::FileNotFound:
        return GdiplusStatus::FileNotFound;
    case ReadError::AccessDenied:
        return GdiplusStatus::AccessDenied;
    case ReadError::UnsupportedFormat:
        return GdiplusStatus::UnknownImageFormat;
    case ReadError::InvalidData:
        // The picture library answered broken data with "invalid parameter" as well.
        return GdiplusStatus::InvalidParameter;
    case ReadError::OutOfMemory:
        return GdiplusStatus::OutOfMemory;
    case ReadError::ReaderMissing:
        return GdiplusStatus::GdiplusNotInitialized;
    case ReadError::Unknown:
        break;
    }
    return GdiplusStatus::GenericError;
}

QString readFailureText(const ReadFailure& failure) {
    const QString status = gdiplusStatusText(int(gdiplusStatusOf(failure.error)));
    switch (failure.step) {
    case ReadStep::Startup:
        return status + u"\r\nInitialisierung scheitert"_s;
    case ReadStep::Bitmap:
        return u"Bitmap kann nicht aus Bild-Datei erstellt werden\r\n"_s + status;
    case ReadStep::Handle:
        return u"Bitmap-Handle kann nicht erzeugt werden\r\n"_s + status;
    case ReadStep::Picture:
        break;
    }
    return u"Bitmap kann nicht aus Handle erstellt werden\r\n"_s + status;
}

QString loadPicture(const QString& name, bool preferFullReader, PictureDecoder& decoder) {
    const QString path = name.trimmed();
    if (path.isEmpty())
        return decoder.takeClipboardPicture() ? QString() : u"Die Zwischenablage enthält kein Bild."_s;
    if (path.size() < kShortestName)
        return u"Ungeeigneter Dateiname"_s;
    if (!fileExists(path))
        return u"Datei nicht vorhanden/verfügbar"_s;
    // A pipe or device is no picture, and reading one could block the viewer.
    if (const FileOpen status = regularFileStatus(path); status != FileOpen::Opened)
        return fileOpenRefusalText(status, path);
    if (QFileInfo(path).size() < kSmallestPicture)
        return u"Leere Datei"_s;

    const std::optional<PictureKind> kind = pictureKindOf(path);
    if (!kind)
        return u"Bildformat wird nicht unterstützt"_s;
    const bool full = *kind == PictureKind::FullOnly || (*kind == PictureKind::Bitmap && preferFullReader);
    if (!full)
        return decoder.loadPlain(path) ? QString() : u"Laden des Bildes scheitert (Loadpicture)"_s;
    const std::optional<ReadFailure> failure = decoder.readFull(path);
    return failure ? readFailureText(*failure) : QString();
}

} // namespace quenfor
