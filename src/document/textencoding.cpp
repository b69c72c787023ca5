#include "document/textencoding.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <array>
#include <cstring>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr char16_t kEscapeBase = 0xDC00; // a byte b that cannot be decoded becomes U+DC00 + b

bool isEscape(char16_t c) {
    return c >= 0xDC80 && c <= 0xDCFF;
}

bool isHighSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool isLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

// Length of the valid UTF-8 sequence at p, or 0 when it is not valid.
qsizetype utf8SequenceLength(const unsigned char* p, qsizetype left) {
    const unsigned char b = p[0];
    if (b < 0x80)
        return 1;
    auto cont = [&](qsizetype i) { return i < left && (p[i] & 0xC0) == 0x80; };
    if (b >= 0xC2 && b <= 0xDF)
        return cont(1) ? 2 : 0;
    if (b >= 0xE0 && b <= 0xEF) {
        if (!cont(1) || !cont(2))
            return 0;
        if (b == 0xE0 && p[1] < 0xA0) // overlong
            return 0;
        if (b == 0xED && p[1] >= 0xA0) // surrogate halves
            return 0;
        return 3;
    }
    if (b >= 0xF0 && b <= 0xF4) {
        if (!cont(1) || !cont(2) || !cont(3))
            return 0;
        if (b == 0xF0 && p[1] < 0x90) // overlong
            return 0;
        if (b == 0xF4 && p[1] >= 0x90) // above U+10FFFF
            return 0;
        return 4;
    }
    return 0;
}

qsizetype asciiPrefixLength(const char* data, qsizetype size) {
    qsizetype i = 0;
    for (; i + 8 <= size; i += 8) {
        quint64 word;
        std::memcpy(&word, data + i, 8);
        if (word & 0x8080808080808080ULL)
            break;
    }
    while (i < size && static_cast<unsigned char>(data[i]) < 0x80)
        ++i;
    return i;
}

// QString::fromUtf8 takes a leading EF BB BF for a byte order mark and drops it. Inside a file
// (a line that starts with one, files joined with `cat`) it is a character like any other and
// must survive, so the marks in front are decoded here by hand, however many there are.
QString fromUtf8KeepingMark(const char* data, qsizetype size) {
    qsizetype marks = 0;
    while (size - 3 * marks >= 3 && std::memcmp(data + 3 * marks, kUtf8Mark, 3) == 0)
        ++marks;
    if (marks == 0)
        return QString::fromUtf8(data, size);
    return QString(marks, QChar(char16_t(0xFEFF))) + QString::fromUtf8(data + 3 * marks, size - 3 * marks);
}

class Utf8Codec final : public LineCodec {
public:
    QString decode(const char* data, qsizetype size) const override {
        if (isValidUtf8(data, size))
            return fromUtf8KeepingMark(data, size);
        return decodeWithEscapes(reinterpret_cast<const unsigned char*>(data), size);
    }

    void encodeAppend(QStringView line, QByteArray& out, qsizetype& unrepresentable) const override {
        bool plain = true;
        for (QChar c : line) {
            if ((c.unicode() & 0xF800) == 0xD800) {
                plain = false;
                break;
            }
        }
        if (plain) {
            out.append(line.toUtf8());
            return;
        }
        encodeWithEscapes(line, out, unrepresentable);
    }

    // Before the last lead byte among the last three, whose sequence may go on in the next
    // bytes; anywhere else nothing before the cut looks past it. A lead or ASCII byte is never
    // part of an earlier sequence, so the decoding starts afresh there either way.
    qsizetype decodeCut(const char* data, qsizetype size) const override {
        for (qsizetype at = size - 1; at >= 0 && at >= size - 3; --at) {
            const auto b = static_cast<unsigned char>(data[at]);
            if (b < 0x80)
                return size;
            if (b >= 0xC0)
                return at;
        }
        return size;
    }

    bool encodesInSlices() const override { return true; }

private:
    static QString decodeWithEscapes(const unsigned char* p, qsizetype size) {
        QString result;
        result.reserve(size);
        qsizetype i = 0;
        while (i < size) {
            const qsizetype n = utf8SequenceLength(p + i, size - i);
            if (n == 0) {
                result.append(QChar(char16_t(kEscapeBase + p[i])));
                ++i;
            } else {
                result.append(fromUtf8KeepingMark(reinterpret_cast<const char*>(p + i), n));
                i += n;
            }
        }
        return result;
    }

    static void encodeWithEscapes(QStringView line, QByteArray& out, qsizetype& unrepresentable) {
        qsizetype runStart = 0;
        auto flush = [&](qsizetype end) {
            if (end > runStart)
                out.append(line.mid(runStart, end - runStart).toUtf8());
        };
        for (qsizetype i = 0; i < line.size(); ++i) {
            const char16_t c = line[i].unicode();
            if (isHighSurrogate(c) && i + 1 < line.size() && isLowSurrogate(line[i + 1].unicode())) {
                ++i; // a proper pair is ordinary text
                continue;
            }
            if ((c & 0xF800) != 0xD800)
                continue;
            flush(i);
            if (isEscape(c)) {
                out.append(char(c - kEscapeBase));
            } else {
                out.append('?');
                ++unrepresentable;
            }
            runStart = i + 1;
        }
        flush(line.size());
    }
};

// Single-byte code pages go through two tables: one lookup per character in each direction.
class SingleByteCodec final : public LineCodec {
public:
    explicit SingleByteCodec(const std::array<char16_t, 256>& toUnicode) : m_toUnicode(toUnicode) {
        m_fromUnicode.assign(0x10000, -1);
        for (int b = 0; b < 256; ++b)
            m_fromUnicode[m_toUnicode[b]] = static_cast<qint16>(b);
    }

    QString decode(const char* data, qsizetype size) const override {
        QString result(size, Qt::Uninitialized);
        char16_t* dst = reinterpret_cast<char16_t*>(result.data());
        const auto* src = reinterpret_cast<const unsigned char*>(data);
        for (qsizetype i = 0; i < size; ++i)
            dst[i] = m_toUnicode[src[i]];
        return result;
    }

    void encodeAppend(QStringView line, QByteArray& out, qsizetype& unrepresentable) const override {
        const qsizetype start = out.size();
        out.resize(start + line.size());
        char* dst = out.data() + start;
        // Nearly every line encodes one byte per character; only a line with a character the
        // code page lacks takes the careful path.
        for (qsizetype i = 0; i < line.size(); ++i) {
            const qint16 b = m_fromUnicode[line[i].unicode()];
            if (b < 0) {
                encodeRest(line, i, out, start, unrepresentable);
                return;
            }
            dst[i] = char(b);
        }
    }

    qsizetype decodeCut(const char*, qsizetype size) const override { return size; }
    bool encodesInSlices() const override { return true; }

private:
    void encodeRest(QStringView line, qsizetype i, QByteArray& out, qsizetype start, qsizetype& unrepresentable) const {
        char* dst = out.data() + start;
        qsizetype written = i;
        for (; i < line.size(); ++i) {
            const char16_t c = line[i].unicode();
            const qint16 b = m_fromUnicode[c];
            if (b >= 0) {
                dst[written++] = char(b);
                continue;
            }
            // A character beyond the basic plane is one character, though two UTF-16 units.
            if (isHighSurrogate(c) && i + 1 < line.size() && isLowSurrogate(line[i + 1].unicode()))
                ++i;
            dst[written++] = '?';
            ++unrepresentable;
        }
        out.resize(start + written);
    }

    std::array<char16_t, 256> m_toUnicode;
    std::vector<qint16> m_fromUnicode;
};

// Multi-byte code pages (Shift_JIS, GBK, Big5 ...) are left to ICU line by line; CR and LF are
// never part of a multi-byte character there, so splitting lines on the bytes stays correct.
class IcuCodec final : public LineCodec {
public:
    explicit IcuCodec(QByteArray name) : m_name(std::move(name)) {}

    QString decode(const char* data, qsizetype size) const override {
        QStringDecoder decoder(m_name.constData(), QStringConverter::Flag::Stateless);
        return decoder.decode(QByteArrayView(data, size));
    }

    void encodeAppend(QStringView line, QByteArray& out, qsizetype& unrepresentable) const override {
        QStringEncoder encoder(m_name.constData(), QStringConverter::Flag::Stateless);
        out.append(encoder.encode(line));
        if (encoder.hasError())
            ++unrepresentable;
    }

    // A trail byte may look like ASCII, and the count is per line: such lines stay whole.
    qsizetype decodeCut(const char*, qsizetype) const override { return 0; }
    bool encodesInSlices() const override { return false; }

private:
    QByteArray m_name;
};

bool isUtf8Name(const QString& name) {
    const QString n = name.toLower().remove(u'-').remove(u'_');
    return n == u"utf8"_s;
}

} // namespace

QString TextEncoding::displayName() const {
    if (kind == Kind::Utf8)
        return byteOrderMark ? u"UTF-8 mit BOM"_s : u"UTF-8"_s;
    return codepage;
}

bool isValidUtf8(const char* data, qsizetype size) {
    const auto* p = reinterpret_cast<const unsigned char*>(data);
    qsizetype i = 0;
    while (i < size) {
        i += asciiPrefixLength(data + i, size - i);
        if (i >= size)
            break;
        const qsizetype n = utf8SequenceLength(p + i, size - i);
        if (n == 0)
            return false;
        i += n;
    }
    return true;
}

bool hasNonAscii(const char* data, qsizetype size) {
    return asciiPrefixLength(data, size) < size;
}

std::shared_ptr<const LineCodec> LineCodec::create(const TextEncoding& encoding, QString* error) {
    if (encoding.kind == TextEncoding::Kind::Utf8 || isUtf8Name(encoding.codepage))
        return std::make_shared<Utf8Codec>();

    const QByteArray name = encoding.codepage.toLatin1();
    QStringDecoder probe(name.constData(), QStringConverter::Flag::Stateless);
    if (!probe.isValid()) {
        if (error)
            *error = u"Die Codepage \"%1\" ist unbekannt."_s.arg(encoding.codepage);
        return nullptr;
    }

    // Line ends and ASCII must be themselves, or splitting lines on CR would cut characters.
    std::array<char, 128> ascii;
    for (int b = 0; b < 128; ++b)
        ascii[b] = char(b);
    const QString asciiText = probe.decode(QByteArrayView(ascii.data(), 128));
    if (asciiText != QLatin1StringView(ascii.data(), 128)) {
        if (error)
            *error = u"Die Codepage \"%1\" ist nicht ASCII-kompatibel und kann nicht verwendet werden."_s.arg(
                encoding.codepage);
        return nullptr;
    }

    std::array<char16_t, 256> table{};
    int undefined = 0;
    bool multiByte = false;
    for (int b = 0; b < 256; ++b) {
        const char single = char(b);
        QStringDecoder one(name.constData(), QStringConverter::Flag::Stateless);
        const QString decoded = one.decode(QByteArrayView(&single, 1));
        if (decoded.size() == 1 && decoded[0] != QChar::ReplacementCharacter && !one.hasError()) {
            table[b] = decoded[0].unicode();
        } else {
            table[b] = char16_t(kEscapeBase + b);
            ++undefined;
        }
        if (b >= 0x80) {
            const char pair[2] = {single, single};
            QStringDecoder two(name.constData(), QStringConverter::Flag::Stateless);
            if (QString(two.decode(QByteArrayView(pair, 2))).size() == 1)
                multiByte = true; // a lead byte followed by a trail byte gave one character
        }
    }
    // Two bytes that decode to the same character would not come back; keep the later as escape.
    std::vector<bool> used(0x10000, false);
    for (int b = 0; b < 256; ++b) {
        if (used[table[b]])
            table[b] = char16_t(kEscapeBase + b);
        used[table[b]] = true;
    }
    if (multiByte || undefined > 64)
        return std::make_shared<IcuCodec>(name);
    return std::make_shared<SingleByteCodec>(table);
}

} // namespace quenfor
