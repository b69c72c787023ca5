// Long lines are decoded and encoded in pieces; every way of cutting must give what the whole
// line gives at once.
#include "testsupport.h"

#include "document/documentfile.h"
#include "document/linepieces.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

std::shared_ptr<const LineCodec> codecFor(const TextEncoding& encoding) {
    QString error;
    auto codec = LineCodec::create(encoding, &error);
    EXPECT_TRUE(codec) << error.toStdString();
    return codec;
}

struct Encoded {
    const char* what;
    TextEncoding encoding;
    QByteArray bytes;
};

// Sequences of two to four bytes, broken ones (cut, overlong, surrogate halves, stray
// continuation bytes, a lead byte before ASCII), marks at the start and inside, and a code page
// with its undefined bytes; GBK, whose trail bytes may look like ASCII, cannot be cut at all and
// must still come out whole.
const Encoded kLines[] = {
    {"UTF-8", TextEncoding::utf8(false),
     "a\xC3\xA4"
     "b\xE2\x82\xAC"
     "c\xF0\x9F\x98\x80"
     "d\xC3\xA4"},
    {"broken UTF-8", TextEncoding::utf8(false),
     "\xC3(\xE2\x82x\xF0\x9F\x98\xFF\x80\xBF\xC0\xAF\xE0\x80\xAF\xED\xA0\x80\xF4\x90\x80\x80\xC3"},
    {"marks", TextEncoding::utf8(true),
     "\xEF\xBB\xBF"
     "a\xEF\xBB\xBF\xEF\xBB\xBF"
     "b\xEF\xBB"},
    {"windows-1252", TextEncoding::codepageNamed(u"windows-1252"_s), "\x80\x81\x8D\x8F\x90\x9D\xE4\xF6\xFC\xDF\xFF x"},
    {"GBK", TextEncoding::codepageNamed(u"GBK"_s), "\xD6\xD0\xCE\xC4 a\x81\x40\x81"},
};

TEST(LinePieces, DecodingInPiecesEqualsDecodingAtOnceForEveryCut) {
    for (const Encoded& c : kLines) {
        SCOPED_TRACE(c.what);
        const auto codec = codecFor(c.encoding);
        ASSERT_TRUE(codec);
        const QByteArray& b = c.bytes;
        const QString whole = codec->decode(b.constData(), b.size());
        // Two cuts at every pair of places: a piece may be empty, or hold part of a sequence.
        for (qsizetype i = 0; i <= b.size(); ++i) {
            for (qsizetype j = i; j <= b.size(); ++j) {
                LinePieceDecoder decoder(*codec, 0); // decodes whatever it may as soon as it can
                decoder.append(b.constData(), i);
                decoder.append(b.constData() + i, j - i);
                ASSERT_EQ(decoder.take(b.constData() + j, b.size() - j), whole) << "cut at " << i << " and " << j;
                EXPECT_TRUE(decoder.isEmpty());
            }
        }
        // Byte by byte, holding a few.
        for (const qsizetype hold : {0, 1, 3}) {
            LinePieceDecoder decoder(*codec, hold);
            for (const char byte : b)
                decoder.append(&byte, 1);
            EXPECT_EQ(decoder.take(nullptr, 0), whole) << "holding " << hold;
        }
    }
}

TEST(LinePieces, EncodingInSlicesEqualsEncodingAtOnceForEverySliceLength) {
    const QString pair = u"😀"_s;
    const QChar lowAlone(char16_t(0xDE00));
    const QChar highAlone(char16_t(0xD83D));
    const QChar escapedByte(char16_t(0xDC81));
    const QString text = u"a"_s + pair + u"ä€中"_s + pair + pair + escapedByte + u"b"_s + highAlone + u"c"_s +
                         lowAlone + highAlone + pair + u"x"_s + lowAlone;
    const TextEncoding encodings[] = {TextEncoding::utf8(false), TextEncoding::codepageNamed(u"windows-1252"_s),
                                      TextEncoding::codepageNamed(u"GBK"_s)};
    for (const TextEncoding& encoding : encodings) {
        SCOPED_TRACE(encoding.displayName().toStdString());
        const auto codec = codecFor(encoding);
        ASSERT_TRUE(codec);
        QByteArray whole;
        qsizetype wholeCount = 0;
        codec->encodeAppend(text, whole, wholeCount);
        for (qsizetype slice = 1; slice <= text.size(); ++slice) {
            QByteArray drained;
            QByteArray out = "head";
            qsizetype count = 0;
            int drains = 0;
            const bool ok = encodeInSlices(*codec, text, out, count, slice, [&](QByteArray& bytes) {
                ++drains;
                drained += bytes;
                bytes.clear();
                return true;
            });
            ASSERT_TRUE(ok);
            ASSERT_EQ(drained + out, "head" + whole) << "slice " << slice;
            ASSERT_EQ(count, wholeCount) << "slice " << slice;
            EXPECT_EQ(drains > 0, slice < text.size() && codec->encodesInSlices()) << "slice " << slice;
        }
        // A drain that fails (a full disk) stops the encoding at once.
        QByteArray out;
        qsizetype count = 0;
        int drains = 0;
        const bool ok = encodeInSlices(*codec, text, out, count, 2, [&](QByteArray&) { return ++drains > 5; });
        EXPECT_EQ(ok, !codec->encodesInSlices());
        EXPECT_EQ(drains, codec->encodesInSlices() ? 1 : 0);
    }
}

// A line of several read pieces, with characters across every boundary, read from a file and
// written back, against the same bytes decoded and encoded as one line.
TEST(LinePieces, ALineLongerThanTheReadPiecesIsReadAndWrittenWhole) {
    QByteArray line = "mapkey $F2 "; // puts the read pieces' ends inside characters
    while (line.size() < 3 * kLineBytesHeld)
        line += "@MAPKEY_LABEL\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80;\xE4";
    const QByteArray bytes = line + "\r\nopt2 yes\r\n";
    QTemporaryDir dir;
    const QString path = dir.filePath(u"zeile.pro"_s);
    ASSERT_TRUE(test::writeBytes(path, bytes));
    for (const QString& codepage : {u"windows-1252"_s, u"UTF-8"_s}) {
        SCOPED_TRACE(codepage.toStdString());
        const EncodingChoice choice{codepage, true};
        const ReadResult read = readDocumentFile(path, choice);
        ASSERT_TRUE(read.ok) << read.error.toStdString();
        const ReadResult whole = readDocumentBytes(bytes, choice);
        ASSERT_EQ(read.lines.size(), 2);
        EXPECT_TRUE(read.lines == whole.lines);

        QBuffer saved;
        saved.open(QIODevice::WriteOnly);
        ASSERT_TRUE(writeDocument(saved, read.lines, read.encoding).ok);
        EXPECT_TRUE(saved.data() == bytes);
    }
}

} // namespace
} // namespace quenfor
