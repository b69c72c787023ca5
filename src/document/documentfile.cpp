#include "document/documentfile.h"

#include "common/memorybudget.h"
#include "common/regularfile.h"
#include "document/linepieces.h"
#include "document/linesplit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr qint64 kChunkSize = 1 << 20;
constexpr qsizetype kMarkSize = 3;

bool startsWithMark(QByteArrayView bytes) {
    return bytes.startsWith(QByteArrayView(kUtf8Mark, kMarkSize));
}

bool isUtf8Codepage(const QString& name) {
    QString n = name.toLower();
    n.remove(u'-');
    n.remove(u'_');
    return n == u"utf8"_s;
}

TextEncoding chooseEncoding(bool mark, bool validUtf8, bool nonAscii, const EncodingChoice& choice) {
    if (choice.force)
        return isUtf8Codepage(choice.codepage) ? TextEncoding::utf8(mark)
                                               : TextEncoding::codepageNamed(choice.codepage);
    if (mark || (validUtf8 && nonAscii))
        return TextEncoding::utf8(mark);
    return TextEncoding::codepageNamed(choice.codepage);
}

// Checks UTF-8 across pieces of a stream: a sequence cut by the end of a piece is carried over.
class StreamingUtf8Check {
public:
    void feed(const char* data, qsizetype size) {
        if (!m_valid)
            return;
        if (!m_carry.isEmpty()) {
            QByteArray joined = m_carry;
            joined.append(data, size);
            m_carry.clear();
            check(joined.constData(), joined.size());
        } else {
            check(data, size);
        }
    }
    bool finish() {
        if (!m_carry.isEmpty())
            m_valid = m_valid && isValidUtf8(m_carry.constData(), m_carry.size());
        return m_valid;
    }
    bool nonAscii() const { return m_nonAscii; }

private:
    void check(const char* data, qsizetype size) {
        qsizetype cut = size;
        for (qsizetype back = 1; back <= 3 && back <= size; ++back) {
            const auto b = static_cast<unsigned char>(data[size - back]);
            if (b < 0x80)
                break;
            if (b >= 0xC0) {
                const qsizetype need = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : 2;
                if (need > back)
                    cut = size - back;
                break;
            }
        }
        m_nonAscii = m_nonAscii || hasNonAscii(data, size);
        m_valid = isValidUtf8(data, cut);
        m_carry = QByteArray(data + cut, size - cut);
    }

    bool m_valid = true;
    bool m_nonAscii = false;
    QByteArray m_carry;
};

// Turns pieces of bytes into decoded lines by the reader's rule. A CR at the end of a piece
// ends the line at once; an LF at the start of the next piece then belongs to that CR.
class LineAssembler {
public:
    LineAssembler(const LineCodec& codec, QStringList& lines) : m_pending(codec), m_lines(lines) {}

    void feed(const char* data, qsizetype size) {
        qsizetype i = 0;
        if (m_lfMayFollow && size > 0) {
            m_lfMayFollow = false;
            if (data[0] == '\n')
                i = 1;
        }
        qsizetype start = i;
        while (i < size) {
            const void* cr = std::memchr(data + i, '\r', size_t(size - i));
            if (!cr)
                break;
            const qsizetype at = static_cast<const char*>(cr) - data;
            emitLine(data + start, at - start);
            i = at + 1;
            if (i < size) {
                if (data[i] == '\n')
                    ++i;
            } else {
                m_lfMayFollow = true;
            }
            start = i;
        }
        if (start < size)
            m_pending.append(data + start, size - start);
    }

    void finish() {
        if (!m_pending.isEmpty())
            m_lines.append(m_pending.take(nullptr, 0));
    }

private:
    void emitLine(const char* data, qsizetype size) { m_lines.append(m_pending.take(data, size)); }

    LinePieceDecoder m_pending; // the line that runs on into the next piece
    QStringList& m_lines;
    bool m_lfMayFollow = false;
};

QString nativePath(const QString& path) {
    return QDir::toNativeSeparators(path);
}

QString readErrorText(const QString& path, const QFile& file, int err) {
    const QFileInfo info(path);
    const QString name = nativePath(path);
    if (!info.exists())
        return u"Die Datei %1 existiert nicht."_s.arg(name);
    if (info.isDir())
        return u"%1 ist ein Verzeichnis und keine Datei."_s.arg(name);
    if (err == EACCES || err == EPERM)
        return u"Die Datei %1 kann nicht gelesen werden: Es fehlen die Leserechte."_s.arg(name);
    // The file may never have reached the open: then the system's own reason is the one to show.
    const QString reason = file.error() == QFileDevice::NoError ? qt_error_string(err) : file.errorString();
    return u"Die Datei %1 kann nicht gelesen werden: %2"_s.arg(name, reason);
}

ReadResult readStream(QIODevice& device, const TextEncoding& encoding, qint64 skip, qsizetype expectedLines,
                      LineFeeds lineFeeds) {
    ReadResult result;
    result.lines.reserve(expectedLines); // no growing copies of a list of a million lines
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = error;
        return result;
    }
    result.encoding = encoding;
    LineAssembler assembler(*codec, result.lines);
    QByteArray chunk(kChunkSize, Qt::Uninitialized);
    if (skip > 0)
        device.read(chunk.data(), skip);
    for (;;) {
        const qint64 n = device.read(chunk.data(), kChunkSize);
        if (n < 0) {
            result.error = u"Lesefehler: %1"_s.arg(device.errorString());
            result.lines.clear();
            return result;
        }
        if (n == 0)
            break;
        // With no LF left, CR LF is two line ends, as the repair wants it.
        if (lineFeeds == LineFeeds::EndLine)
            std::replace(chunk.data(), chunk.data() + n, '\n', '\r');
        assembler.feed(chunk.constData(), n);
    }
    assembler.finish();
    result.ok = true;
    return result;
}

QString saveErrorText(const QString& path, const QString& reason) {
    return u"Die Datei %1 konnte nicht gespeichert werden: %2 Die bisherige Datei bleibt unverändert."_s.arg(
        nativePath(path), reason);
}

// Encodes the lines piece by piece, so a large document never exists twice in memory, nor a
// long line once as text and once as bytes.
template <typename Write>
bool encodeLines(const QStringList& lines, const LineCodec& codec, qsizetype& unrepresentable, Write&& write) {
    QByteArray buffer;
    buffer.reserve(kChunkSize + 4096);
    auto writeIfFull = [&](QByteArray& bytes) {
        if (bytes.size() < kChunkSize)
            return true;
        const bool written = write(bytes);
        bytes.resize(0);
        return written;
    };
    for (const QString& line : lines) {
        if (!encodeInSlices(codec, line, buffer, unrepresentable, kLineEncodeSlice, writeIfFull))
            return false;
        buffer.append("\r\n", 2);
        if (buffer.size() >= kChunkSize) {
            if (!write(buffer))
                return false;
            buffer.resize(0);
        }
    }
    return buffer.isEmpty() || write(buffer);
}

} // namespace

ReadResult readDocumentFile(const QString& path, const EncodingChoice& choice, LineFeeds lineFeeds) {
    QFile file;
    const FileOpen opened = openRegularFile(file, path);
    if (opened != FileOpen::Opened) {
        const int err = errno;
        ReadResult result;
        // A pipe or device is refused before it could block the read.
        result.error =
            opened == FileOpen::NotRegular ? fileOpenRefusalText(opened, path) : readErrorText(path, file, err);
        return result;
    }

    // The lines take about three times the file's size, a tool's result as much again; under a
    // memory limit that cannot hold them the reading is refused before anything is allocated.
    constexpr qint64 kMemoryPerFileByte = 4;
    if (const QString shortfall = memoryShortfallFor(file.size() * kMemoryPerFileByte); !shortfall.isEmpty()) {
        ReadResult result;
        result.error = u"%1: %2"_s.arg(nativePath(path), shortfall);
        return result;
    }

    const std::optional<FileStamp> stamp = fileStampOf(path);

    // First pass: which encoding. The second pass decodes; the file is in the cache by then.
    StreamingUtf8Check check;
    QByteArray chunk(kChunkSize, Qt::Uninitialized);
    bool mark = false;
    bool first = true;
    qsizetype lineEnds = 0;
    bool lineFeedSeen = false;
    for (;;) {
        const qint64 n = file.read(chunk.data(), kChunkSize);
        if (n < 0) {
            ReadResult result;
            result.error = u"Die Datei %1 kann nicht gelesen werden: %2"_s.arg(nativePath(path), file.errorString());
            return result;
        }
        if (n == 0)
            break;
        if (first)
            mark = startsWithMark(QByteArrayView(chunk.constData(), n));
        first = false;
        check.feed(chunk.constData(), n);
        lineEnds += std::count(chunk.constData(), chunk.constData() + n, '\r');
        // Only while no CR has turned up: a file with CRs is no Unix file, and the search stops.
        lineFeedSeen = lineFeedSeen || (lineEnds == 0 && std::memchr(chunk.constData(), '\n', size_t(n)));
    }
    const bool valid = check.finish();
    const TextEncoding encoding = chooseEncoding(mark, valid, check.nonAscii(), choice);
    chunk = QByteArray();

    if (!file.seek(0)) {
        ReadResult result;
        result.error = u"Die Datei %1 kann nicht gelesen werden: %2"_s.arg(nativePath(path), file.errorString());
        return result;
    }
    const bool skipMark = mark && encoding.kind == TextEncoding::Kind::Utf8;
    ReadResult result = readStream(file, encoding, skipMark ? kMarkSize : 0, lineEnds + 1, lineFeeds);
    result.lineFeedsOnly = result.ok && lineFeeds == LineFeeds::InLine && lineEnds == 0 && lineFeedSeen;
    result.stamp = stamp;
    return result;
}

ReadResult readDocumentBytes(QByteArrayView bytes, const EncodingChoice& choice, LineFeeds lineFeeds) {
    const bool mark = startsWithMark(bytes);
    const bool valid = isValidUtf8(bytes.data(), bytes.size());
    const TextEncoding encoding = chooseEncoding(mark, valid, hasNonAscii(bytes.data(), bytes.size()), choice);
    const bool skipMark = mark && encoding.kind == TextEncoding::Kind::Utf8;
    const QByteArrayView body = skipMark ? bytes.sliced(kMarkSize) : bytes;

    ReadResult result;
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = error;
        return result;
    }
    result.encoding = encoding;
    const auto sink = [&](qsizetype start, qsizetype length) {
        result.lines.append(codec->decode(body.data() + start, length));
    };
    if (lineFeeds == LineFeeds::EndLine) {
        forEachLineOrFeed(body.data(), body.size(), sink);
    } else {
        forEachLine(body.data(), body.size(), sink);
        result.lineFeedsOnly = result.lines.size() == 1 && !body.contains('\r') && body.contains('\n');
    }
    result.ok = true;
    return result;
}

TextEncoding encodingOf(QByteArrayView bytes, const EncodingChoice& choice) {
    return chooseEncoding(startsWithMark(bytes), isValidUtf8(bytes.data(), bytes.size()),
                          hasNonAscii(bytes.data(), bytes.size()), choice);
}

QString decodeText(QByteArrayView bytes, const EncodingChoice& choice, TextEncoding* used) {
    const bool mark = startsWithMark(bytes);
    const TextEncoding encoding = encodingOf(bytes, choice);
    if (used)
        *used = encoding;
    const auto codec = LineCodec::create(encoding, nullptr);
    if (!codec)
        return {};
    const bool skipMark = mark && encoding.kind == TextEncoding::Kind::Utf8;
    const QByteArrayView body = skipMark ? bytes.sliced(kMarkSize) : bytes;
    return codec->decode(body.data(), body.size());
}

QString WriteResult::warning(const TextEncoding& encoding) const {
    if (unrepresentable == 0)
        return {};
    return u"%1 Zeichen sind in %2 nicht darstellbar und wurden als \"?\" gespeichert."_s.arg(unrepresentable)
        .arg(encoding.displayName());
}

namespace {

// Replaces the file with what fill writes, safely (see SafeFileWrite). False with the German
// error text on failure.
template <typename Fill>
bool saveReplacing(const QString& path, const std::optional<FileStamp>& readAs, WriteResult& result, Fill&& fill) {
    SafeFileWrite file(path);
    if (readAs)
        file.expectUnchanged(*readAs);
    if (file.open() && fill(file) && file.commit())
        return true;
    result.changedOnDisk = file.changedOnDisk();
    result.error = saveErrorText(path, file.reason());
    return false;
}

} // namespace

WriteResult writeDocumentFile(const QString& path, const QStringList& lines, const TextEncoding& encoding,
                              const std::optional<FileStamp>& readAs) {
    WriteResult result;
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = saveErrorText(path, error);
        return result;
    }
    result.ok = saveReplacing(path, readAs, result, [&](SafeFileWrite& file) {
        if (encoding.kind == TextEncoding::Kind::Utf8 && encoding.byteOrderMark && !file.write(kUtf8Mark, kMarkSize))
            return false;
        return encodeLines(lines, *codec, result.unrepresentable,
                           [&](const QByteArray& bytes) { return file.write(bytes.constData(), bytes.size()); });
    });
    return result;
}

WriteResult writeBinaryFile(const QString& path, QByteArrayView bytes) {
    WriteResult result;
    result.ok = saveReplacing(path, std::nullopt, result,
                              [&](SafeFileWrite& file) { return file.write(bytes.data(), bytes.size()); });
    return result;
}

WriteResult writeDocument(QIODevice& device, const QStringList& lines, const TextEncoding& encoding) {
    WriteResult result;
    QString error;
    const auto codec = LineCodec::create(encoding, &error);
    if (!codec) {
        result.error = error;
        return result;
    }
    if (encoding.kind == TextEncoding::Kind::Utf8 && encoding.byteOrderMark &&
        device.write(kUtf8Mark, kMarkSize) != kMarkSize) {
        result.error = u"Schreibfehler: %1"_s.arg(device.errorString());
        return result;
    }
    const bool written = encodeLines(lines, *codec, result.unrepresentable,
                                     [&](const QByteArray& bytes) { return device.write(bytes) == bytes.size(); });
    if (!written) {
        result.error = u"Schreibfehler: %1"_s.arg(device.errorString());
        return result;
    }
    result.ok = true;
    return result;
}

} // namespace quenfor
