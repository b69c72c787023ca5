// Reading any bytes into a document and saving it must be stable: what was saved reads back to
// the same lines in the same encoding, saving again gives the same bytes, and a file that is
// already in the saved form (CR LF after every line) comes back byte for byte. A long line is
// decoded and encoded in pieces: any cut must give what the line at once gives.
#include "fuzzinput.h"

#include "document/documentfile.h"
#include "document/linepieces.h"

#include <QBuffer>

using namespace quenfor;

namespace {

QByteArray save(const QStringList& lines, const TextEncoding& encoding) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!writeDocument(buffer, lines, encoding).ok)
        fuzz::fail("writing to memory failed");
    return bytes;
}

// Every CR is followed by LF and the text ends with CR LF (or is empty, or only a byte order mark).
bool inSavedForm(QByteArrayView bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes = bytes.sliced(3);
    if (bytes.isEmpty())
        return true;
    if (!bytes.endsWith("\r\n"))
        return false;
    for (qsizetype i = 0; i < bytes.size(); ++i)
        if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n'))
            return false;
    return true;
}

// The bytes as one line handed over in pieces of `width` bytes, against decoding them at once;
// each line encoded in slices of `width` characters, against encoding it at once.
void checkPieces(QByteArrayView bytes, const QStringList& lines, const TextEncoding& encoding, qsizetype width) {
    const auto codec = LineCodec::create(encoding, nullptr);
    if (!codec)
        fuzz::fail("the encoding that was read with cannot be created again");
    LinePieceDecoder decoder(*codec, width / 2);
    qsizetype at = 0;
    for (; bytes.size() - at > width; at += width)
        decoder.append(bytes.data() + at, width);
    if (decoder.take(bytes.data() + at, bytes.size() - at) != codec->decode(bytes.data(), bytes.size()))
        fuzz::fail("bytes decoded in pieces differ from the bytes decoded at once");
    for (const QString& line : lines) {
        QByteArray whole;
        qsizetype wholeCount = 0;
        codec->encodeAppend(line, whole, wholeCount);
        QByteArray sliced;
        QByteArray out;
        qsizetype count = 0;
        encodeInSlices(*codec, line, out, count, width, [&](QByteArray& piece) {
            sliced += piece;
            piece.clear();
            return true;
        });
        if (sliced + out != whole || count != wholeCount)
            fuzz::fail("a line encoded in slices differs from the line encoded at once");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    static const char* const codepages[] = {"windows-1252", "ISO-8859-1", "IBM850", "UTF-8", "windows-1250"};
    const uint8_t choiceByte = input.byte();
    EncodingChoice choice;
    choice.codepage = QString::fromLatin1(codepages[choiceByte % 5]);
    choice.force = choiceByte & 0x80;
    const QByteArrayView original = input.rest();

    const ReadResult first = readDocumentBytes(original, choice);
    if (!first.ok)
        return 0; // an unknown code page is refused, not guessed
    const QByteArray saved = save(first.lines, first.encoding);
    const ReadResult second = readDocumentBytes(saved, choice);
    if (!second.ok || second.lines != first.lines || !(second.encoding == first.encoding))
        fuzz::fail("saved lines do not read back as the same lines in the same encoding");
    if (save(second.lines, second.encoding) != saved)
        fuzz::fail("saving twice gives different bytes");
    if (inSavedForm(original) && saved != original)
        fuzz::fail("a CR LF file does not come back byte for byte");
    checkPieces(original, first.lines, first.encoding, 1 + original.size() % 7);
    return 0;
}
