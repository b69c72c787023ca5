#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace quenfor {

// How a file's bytes become text and back. UTF-8 is chosen for files that carry the byte order
// mark or are valid UTF-8 with non-ASCII bytes; every other file uses a code page, by default the
// stored `Codepage` setting.
struct TextEncoding {
    enum class Kind { Codepage, Utf8 };
    Kind kind = Kind::Codepage;
    bool byteOrderMark = false; // UTF-8 only: the file started with EF BB BF and gets it back
    QString codepage = QStringLiteral("windows-1252");

    static TextEncoding utf8(bool withMark) { return {Kind::Utf8, withMark, {}}; }
    static TextEncoding codepageNamed(QString name) { return {Kind::Codepage, false, std::move(name)}; }
    QString displayName() const;
    bool operator==(const TextEncoding&) const = default;
};

inline constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

// Strict UTF-8 check: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isValidUtf8(const char* data, qsizetype size);
bool hasNonAscii(const char* data, qsizetype size);

// Decodes and encodes single lines. Bytes that an encoding cannot decode (invalid UTF-8, the few
// undefined bytes of a code page) become the lone surrogates U+DC80..U+DCFF and turn back into the
// very same bytes on encoding, so no file ever loses a byte by being opened and saved.
class LineCodec {
public:
    // Empty with an error text when the code page is unknown or not ASCII-compatible.
    static std::shared_ptr<const LineCodec> create(const TextEncoding& encoding, QString* error);

    virtual ~LineCodec() = default;
    virtual QString decode(const char* data, qsizetype size) const = 0;
    // Appends the encoded line; characters the encoding cannot hold become "?" and are counted.
    virtual void encodeAppend(QStringView line, QByteArray& out, qsizetype& unrepresentable) const = 0;

    // Where the bytes of a long line may be cut: the bytes before the cut decode to the same
    // text whatever bytes follow them. At most `size`; 0 when no cut is safe.
    virtual qsizetype decodeCut(const char* data, qsizetype size) const = 0;
    // Whether a line encoded in slices, never between the halves of a surrogate pair, gives the
    // same bytes and the same count of unrepresentable characters as the line at once.
    virtual bool encodesInSlices() const = 0;
};

} // namespace quenfor
