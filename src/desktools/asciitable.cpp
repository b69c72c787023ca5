#include "desktools/asciitable.h"

#include "desktools/decimalnumber.h"

#include <QList>
#include <QStringDecoder>

#include <cmath>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kCodeLimit = 255;
const QString kFallback = u"windows-1252"_s;

QString decodeBytes(const QByteArray& encoding, QByteArrayView bytes, bool* error = nullptr) {
    QStringDecoder decoder(encoding.constData(), QStringConverter::Flag::Stateless);
    const QString decoded = decoder.decode(bytes);
    if (error)
        *error = decoder.hasError();
    return decoded;
}

// A byte that starts a character of two bytes (UTF-8, Shift_JIS, GBK ...) is no character of its
// own, so such a page has no table of 256 characters.
bool startsMultiByteCharacter(const QByteArray& encoding, char byte) {
    for (const char trail : {'\x41', '\x80', '\xA1', byte}) {
        const char pair[2] = {byte, trail};
        if (decodeBytes(encoding, QByteArrayView(pair, 2)).toUcs4().size() == 1)
            return true;
    }
    return false;
}

// Decodes each byte alone; a byte that is no character of its own stays 0. Returns false when
// the page is unknown, not ASCII in its lower half or not a single-byte page.
bool fillTable(const QString& name, std::array<char32_t, 256>& characters) {
    const QByteArray encoding = name.toLatin1();
    if (!QStringDecoder(encoding.constData()).isValid())
        return false;
    for (int code = 0; code < 256; ++code) {
        const char byte = char(code);
        bool error = false;
        const QList<uint> points = decodeBytes(encoding, QByteArrayView(&byte, 1), &error).toUcs4();
        const bool single = points.size() == 1 && points[0] != QChar::ReplacementCharacter && !error;
        characters[code] = single ? points[0] : 0;
        if (code < 128 && characters[code] != char32_t(code))
            return false;
        if (code >= 128 && startsMultiByteCharacter(encoding, byte))
            return false;
    }
    return true;
}

AsciiUpdate characterOfCode(const CodePageTable& table, int code) {
    AsciiUpdate update;
    update.character = table.characterOf(code);
    if (update.character->isEmpty())
        update.message = u"Der Code %1 ist in der Codepage %2 nicht belegt."_s.arg(code).arg(table.name());
    return update;
}

// The value of Text2: a whole number, or the message that tells what is wrong.
std::optional<double> codeValue(const QString& code, QString& message) {
    const std::optional<double> value = parseDecimal(code);
    if (!value)
        message = codeLimitMessage();
    else if (*value != std::floor(*value))
        message = u"Bitte eine ganze Zahl eingeben."_s;
    else
        return value;
    return std::nullopt;
}

} // namespace

CodePageTable CodePageTable::load(const QString& name, QString* note) {
    CodePageTable table;
    table.m_name = name.trimmed();
    if (!fillTable(table.m_name, table.m_characters)) {
        if (note)
            *note = u"Die Codepage „%1“ ist keine bekannte Ein-Byte-Codepage; die Tabelle zeigt %2."_s.arg(table.m_name,
                                                                                                           kFallback);
        table.m_name = kFallback;
        fillTable(kFallback, table.m_characters);
    }
    return table;
}

QString CodePageTable::characterOf(int code) const {
    if (code < 0 || code > 255 || (code > 0 && m_characters[code] == 0))
        return {};
    const char32_t character = m_characters[code];
    return QString::fromUcs4(&character, 1);
}

std::optional<int> CodePageTable::codeOf(const QString& text) const {
    if (text.isEmpty())
        return std::nullopt;
    const char32_t first = text.toUcs4().constFirst();
    for (int code = 0; code < 256; ++code) {
        if (m_characters[code] == first && (code == 0 || first != 0))
            return code;
    }
    return std::nullopt;
}

QString codeLimitMessage() {
    return u" Bitte eine Zahl (< 255) eingeben !"_s;
}

AsciiUpdate characterToCode(const CodePageTable& table, const QString& character) {
    AsciiUpdate update;
    if (character.isEmpty())
        return update;
    if (const std::optional<int> code = table.codeOf(character))
        update.code = QString::number(*code);
    else
        update.message =
            u"Das Zeichen „%1“ gibt es in der Codepage %2 nicht."_s.arg(firstCharacter(character), table.name());
    return update;
}

AsciiUpdate codeToCharacter(const CodePageTable& table, const QString& code) {
    AsciiUpdate update;
    if (code.trimmed().isEmpty())
        return update;
    std::optional<double> value = codeValue(code, update.message);
    if (!value)
        return update;
    if (*value <= 0) {
        value = 1;
        update.code = u"1"_s;
    }
    if (*value >= kCodeLimit) {
        update.message = codeLimitMessage();
        return update;
    }
    AsciiUpdate found = characterOfCode(table, int(*value));
    found.code = update.code;
    return found;
}

AsciiUpdate stepCode(const CodePageTable& table, const QString& code, int step) {
    AsciiUpdate update;
    if (code.trimmed().isEmpty())
        return update;
    const std::optional<double> value = codeValue(code, update.message);
    if (!value)
        return update;
    // Huge values stay huge; only the limit message follows, so there is nothing to overflow.
    const QString stepped = formatDecimal(*value + step, 0);
    AsciiUpdate next = codeToCharacter(table, stepped);
    if (!next.code)
        next.code = stepped;
    return next;
}

QString firstCharacter(const QString& text) {
    if (text.isEmpty())
        return {};
    return text.left(text.at(0).isHighSurrogate() && text.size() > 1 ? 2 : 1);
}

} // namespace quenfor
