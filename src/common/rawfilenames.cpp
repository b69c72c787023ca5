#include "common/rawfilenames.h"

namespace quenfor {

namespace {

constexpr char16_t kEscapeBase = 0xDC00;

bool isEscapedByte(char16_t c) {
    return c >= kEscapeBase + 0x80 && c <= kEscapeBase + 0xFF;
}

// Length of the valid UTF-8 sequence at data[i], or 0 when the byte starts none.
qsizetype validSequenceAt(const unsigned char* data, qsizetype size, qsizetype i) {
    const unsigned char b = data[i];
    if (b < 0x80)
        return 1;
    qsizetype length = 0;
    char32_t min = 0;
    char32_t value = 0;
    if (b >= 0xC2 && b <= 0xDF) {
        length = 2;
        min = 0x80;
        value = b & 0x1F;
    } else if (b >= 0xE0 && b <= 0xEF) {
        length = 3;
        min = 0x800;
        value = b & 0x0F;
    } else if (b >= 0xF0 && b <= 0xF4) {
        length = 4;
        min = 0x10000;
        value = b & 0x07;
    } else {
        return 0;
    }
    if (i + length > size)
        return 0;
    for (qsizetype k = 1; k < length; ++k) {
        const unsigned char c = data[i + k];
        if ((c & 0xC0) != 0x80)
            return 0;
        value = (value << 6) | (c & 0x3F);
    }
    if (value < min || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return 0;
    return length;
}

} // namespace

QString decodeFileName(QByteArrayView bytes) {
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const qsizetype size = bytes.size();
    QString name;
    name.reserve(size);
    qsizetype runStart = 0;
    qsizetype i = 0;
    while (i < size) {
        const qsizetype length = validSequenceAt(data, size, i);
        if (length > 0) {
            i += length;
            continue;
        }
        name += QString::fromUtf8(bytes.sliced(runStart, i - runStart));
        name += QChar(char16_t(kEscapeBase + data[i]));
        ++i;
        runStart = i;
    }
    name += QString::fromUtf8(bytes.sliced(runStart, size - runStart));
    return name;
}

QByteArray encodeFileName(QStringView name) {
    QByteArray bytes;
    bytes.reserve(name.size());
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t c = name[i].unicode();
        // A low surrogate right after a high one is half of a real character, not a kept byte.
        if (!isEscapedByte(c) || (i > 0 && name[i - 1].isHighSurrogate()))
            continue;
        bytes += name.sliced(runStart, i - runStart).toUtf8();
        bytes += char(c - kEscapeBase);
        runStart = i + 1;
    }
    bytes += name.sliced(runStart).toUtf8();
    return bytes;
}

QString readableFileName(QStringView name) {
    QString readable = name.toString();
    for (qsizetype i = 0; i < readable.size(); ++i) {
        const char16_t c = readable[i].unicode();
        if (isEscapedByte(c) && !(i > 0 && readable[i - 1].isHighSurrogate()))
            readable[i] = QChar(char16_t(c - kEscapeBase)); // the byte read as Latin-1
    }
    return readable;
}

} // namespace quenfor
