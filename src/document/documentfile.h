#pragma once

#include "common/safefilewrite.h"
#include "document/textencoding.h"

#include <QByteArrayView>
#include <QIODevice>
#include <QStringList>

namespace quenfor {

// Which code page to use for files that are not UTF-8. `force` applies it to every file, UTF-8
// detection included (the command line's --codepage).
struct EncodingChoice {
    QString codepage = QStringLiteral("windows-1252");
    bool force = false;
};

struct ReadResult {
    bool ok = false;
    QString error; // German, for the user
    QStringList lines;
    TextEncoding encoding;
    // The file holds line feeds but no carriage return at all: its lines end in LF alone, so it
    // was read as one line.
    bool lineFeedsOnly = false;
    // The state of the file as it was read; a save checks it is still the same.
    std::optional<FileStamp> stamp;
};

// How a lone LF is read: as part of the line (the reader's rule), or as a line end like a CR.
// Then a file whose lines end in LF alone gets its lines back, and a CR LF file an empty line
// after each line: the result of "fragmentierten Unix Text reparieren" on the whole file.
enum class LineFeeds { InLine, EndLine };

// Reads a file into lines by the reader's line rule, decoded as the encoding rule decides.
// Reads in pieces and decodes a long line in pieces, so a file costs little more memory than
// its lines.
ReadResult readDocumentFile(const QString& path, const EncodingChoice& choice, LineFeeds lineFeeds = LineFeeds::InLine);
ReadResult readDocumentBytes(QByteArrayView bytes, const EncodingChoice& choice,
                             LineFeeds lineFeeds = LineFeeds::InLine);

// The encoding the reading rule picks for these bytes.
TextEncoding encodingOf(QByteArrayView bytes, const EncodingChoice& choice);

// The whole text of some bytes, decoded by the same rule, line ends included (the repair works
// on the text as it stands in the file).
QString decodeText(QByteArrayView bytes, const EncodingChoice& choice, TextEncoding* used = nullptr);

struct WriteResult {
    bool ok = false;
    QString error;                 // German, for the user; the previous file is then untouched
    qsizetype unrepresentable = 0; // characters the encoding could not hold, written as "?"
    bool changedOnDisk = false;    // refused: another program changed the file since it was read

    QString warning(const TextEncoding& encoding) const;
};

// Writes every line encoded and followed by CR LF, a long line in slices. The file is replaced
// atomically: a save that fails at any point leaves the previous file byte for byte as it was, and
// its owner, permissions, attributes and hard links stay. With `readAs`, a file that changed on
// disk since then is refused.
WriteResult writeDocumentFile(const QString& path, const QStringList& lines, const TextEncoding& encoding,
                              const std::optional<FileStamp>& readAs = std::nullopt);

// Writes the bytes as they are (a picture), replaced atomically in the same way.
WriteResult writeBinaryFile(const QString& path, QByteArrayView bytes);

// The same bytes to an open device (standard output of the command-line tool).
WriteResult writeDocument(QIODevice& device, const QStringList& lines, const TextEncoding& encoding);

} // namespace quenfor
