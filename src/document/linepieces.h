#pragma once

#include "common/textslice.h"
#include "document/textencoding.h"

#include <QByteArray>
#include <QString>

namespace quenfor {

// A line of hundreds of megabytes (one mapkey line) must not exist as bytes and as text at once,
// nor as text and encoded bytes at once: it is decoded and encoded in pieces.

// Bytes of a line held undecoded before a piece of them is decoded.
inline constexpr qsizetype kLineBytesHeld = qsizetype(1) << 20;
// Characters of a line encoded in one go.
inline constexpr qsizetype kLineEncodeSlice = qsizetype(1) << 20;

// Collects a line handed over in pieces and decodes it as if it came in one: once more than
// `holdLimit` bytes are waiting, those before a point where the codec allows a cut are decoded.
class LinePieceDecoder {
public:
    explicit LinePieceDecoder(const LineCodec& codec, qsizetype holdLimit = kLineBytesHeld)
        : m_codec(codec), m_holdLimit(holdLimit) {}

    bool isEmpty() const { return m_bytes.isEmpty() && m_text.isEmpty(); }
    void append(const char* data, qsizetype size);
    // The whole line with its last bytes; the decoder is empty again afterwards.
    QString take(const char* data, qsizetype size) {
        if (isEmpty())
            return m_codec.decode(data, size); // nearly every line: no copy of its bytes
        return takeHeld(data, size);
    }

private:
    QString takeHeld(const char* data, qsizetype size);

    const LineCodec& m_codec;
    qsizetype m_holdLimit;
    QByteArray m_bytes;
    QString m_text;
};

// Appends the encoded line to `out`, for a long line slice by slice of about `slice` characters
// where the codec encodes the same that way, handing `out` to `drain` between slices (it may
// write and empty it). False as soon as `drain` fails.
template <typename Drain>
bool encodeInSlices(const LineCodec& codec, QStringView line, QByteArray& out, qsizetype& unrepresentable,
                    qsizetype slice, Drain&& drain) {
    if (line.size() <= slice || !codec.encodesInSlices()) {
        codec.encodeAppend(line, out, unrepresentable);
        return true;
    }
    while (!line.isEmpty()) {
        const qsizetype end = sliceEnd(line, slice);
        codec.encodeAppend(line.first(end), out, unrepresentable);
        line = line.sliced(end);
        if (!line.isEmpty() && !drain(out))
            return false;
    }
    return true;
}

} // namespace quenfor
