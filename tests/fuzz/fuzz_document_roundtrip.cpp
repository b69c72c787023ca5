// Reading any bytes into a document and saving it must be stable: what was saved reads back to
// the same lines in the same encoding, saving again gives the same bytes, and a file that is
// already in the saved form (CR LF after every line) comes back byte for byte.
#include "fuzzinput.h"

#include "document/documentfile.h"

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
    return 0;
}
