#include "cadfiles/drawingmodel.h"

#include "common/pathsplit.h"
#include "common/regularfile.h"
#include "document/textencoding.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Filler the drawing format pads the name with, and the line ends.
bool isDroppedCharacter(QChar c) {
    switch (c.unicode()) {
    case 10:
    case 13:
    case 32:
    case 33:
    case 60:
    case 61:
    case 62:
    case 63:
    case 64:
        return true;
    default:
        return false;
    }
}

QString modelNameFromSlice(QStringView slice, qsizetype fileNameLength) {
    const qsizetype count = std::min(slice.size(), std::max<qsizetype>(fileNameLength, 0));
    QString name;
    name.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        if (!isDroppedCharacter(slice[i]))
            name.append(slice[i]);
    }
    return name;
}

qsizetype sliceLength(qsizetype drawingNameLength) {
    return drawingNameLength + 1;
}

// Making a codec probes the code page; a folder of drawings needs it once, not once per file.
// One cache per thread, so worker threads need no lock.
const LineCodec* codecFor(const QString& codepage) {
    thread_local QString cachedName;
    thread_local std::shared_ptr<const LineCodec> cached;
    thread_local bool filled = false;
    if (!filled || cachedName != codepage) {
        QString error;
        cached = LineCodec::create(TextEncoding::codepageNamed(codepage), &error);
        cachedName = codepage;
        filled = true;
    }
    return cached.get();
}

QString decodeBytes(const QByteArray& bytes, const QString& codepage) {
    const LineCodec* codec = codecFor(codepage);
    if (!codec)
        return QString::fromLatin1(bytes);
    return codec->decode(bytes.constData(), bytes.size());
}

QString tr(const char* text) {
    return QCoreApplication::translate("DrawingModel", text);
}

} // namespace

QString upperCaseKeepingLength(QStringView text) {
    QString upper;
    upper.reserve(text.size());
    for (const QChar c : text)
        upper.append(c.toUpper());
    return upper;
}

QString drawingNameOf(const QString& path) {
    return upperCaseKeepingLength(splitPath(QFileInfo(path).fileName()).name);
}

QString modelNameFromHeader(QStringView firstLine, qsizetype drawingNameLength, qsizetype fileNameLength) {
    const QStringView slice = firstLine.mid(kModelNamePosition - 1, sliceLength(drawingNameLength));
    return upperCaseKeepingLength(modelNameFromSlice(slice, fileNameLength));
}

DrawingCheck checkDrawing(const QString& path, const QString& codepage) {
    DrawingCheck check;
    check.path = path;
    check.drawingName = drawingNameOf(path);
    QFile file;
    switch (openRegularFile(file, path)) {
    case FileOpen::Opened:
        break;
    case FileOpen::Missing:
    case FileOpen::Folder: // a folder is no drawing
        check.read = DrawingRead::Missing;
        return check;
    case FileOpen::NotRegular:
        check.read = DrawingRead::NotAFile;
        return check;
    case FileOpen::Unreadable:
        check.read = DrawingRead::Unreadable;
        return check;
    }

    // Bytes are characters in the drawing's header, so the position counts bytes. Nothing past
    // the last character the rule can look at is read.
    const qsizetype fileNameLength = QFileInfo(path).fileName().size();
    const qsizetype wanted = std::min(sliceLength(check.drawingName.size()), fileNameLength);
    const qsizetype needed = kModelNamePosition - 1 + wanted;
    QByteArray head(needed, Qt::Uninitialized);
    qsizetype got = 0;
    while (got < needed) {
        const qint64 n = file.read(head.data() + got, needed - got);
        if (n < 0) {
            check.read = DrawingRead::Unreadable;
            return check;
        }
        if (n == 0)
            break;
        got += n;
    }
    head.truncate(got);

    qsizetype lineEnd = head.size();
    for (qsizetype i = 0; i < head.size(); ++i) {
        if (head[i] == '\r' || head[i] == '\n') {
            lineEnd = i;
            break;
        }
    }
    if (lineEnd < kModelNamePosition) {
        check.read = DrawingRead::ShortHeader;
        check.headerLength = lineEnd;
        return check;
    }

    const QString slice =
        decodeBytes(head.sliced(kModelNamePosition - 1, lineEnd - (kModelNamePosition - 1)), codepage);
    check.modelName = upperCaseKeepingLength(modelNameFromSlice(slice, fileNameLength));
    check.matches = check.modelName == check.drawingName;
    return check;
}

QString drawingCheckStatusText(const DrawingCheck& check) {
    return check.matches ? tr("OK! Zeichnung enthält Modell gleichen Namens")
                         : tr("Achtung : Zeichnung enthält Modell NICHT gleichen Namens");
}

QString drawingCheckNote(const DrawingCheck& check) {
    switch (check.read) {
    case DrawingRead::Read:
        return {};
    case DrawingRead::ShortHeader:
        return tr("Hinweis: Die erste Zeile der Datei hat nur %1 Zeichen; der Modellname steht ab Zeichen %2. "
                  "Zeichnungen neuerer Versionen lassen sich so nicht prüfen.")
            .arg(check.headerLength)
            .arg(kModelNamePosition);
    case DrawingRead::Unreadable:
        return tr("Hinweis: Die Datei \"%1\" kann nicht gelesen werden.").arg(check.path);
    case DrawingRead::Missing:
        return tr("Hinweis: Die Datei \"%1\" gibt es nicht (mehr).").arg(check.path);
    case DrawingRead::NotAFile:
        return fileOpenRefusalText(FileOpen::NotRegular, check.path);
    }
    return {};
}

} // namespace quenfor
