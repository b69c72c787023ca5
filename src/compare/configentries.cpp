#include "compare/configentries.h"

#include "document/linekind.h"
#include "lint/conflictingvaluecheck.h"
#include "lint/lintline.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr QStringView kContinued = u"mapkey(continued) ";

// A mapkey line ends in "\" when the macro goes on in the next line; the "\" is not part of it.
QStringView macroPiece(QStringView text) {
    text = withoutTrailingBlanks(text);
    if (text.endsWith(u'\\'))
        text.chop(1);
    return text;
}

// Whether toLower changes the character; the ASCII test spares the Unicode tables for
// nearly every character of an option name.
bool changesInLowerCase(QChar c) {
    if (c.unicode() < 0x80)
        return c.unicode() >= u'A' && c.unicode() <= u'Z';
    return c != c.toLower();
}

QStringView skipBlanks(QStringView text) {
    qsizetype at = 0;
    while (at < text.size() && isOptionBlank(text[at]))
        ++at;
    return text.sliced(at);
}

QStringView firstWord(QStringView text) {
    qsizetype end = 0;
    while (end < text.size() && !isOptionBlank(text[end]))
        ++end;
    return text.first(end);
}

class EntryReader {
public:
    explicit EntryReader(std::vector<ConfigEntry>& out) : m_out(out) {}

    void read(QStringView text, int line) {
        const LineKind kind = classifyLine(text);
        if (kind == LineKind::Continuation) {
            // A continuation with no mapkey open sets nothing; the checks report it.
            if (m_openMapkey) {
                ConfigEntry& mapkey = m_out.back();
                if (mapkey.macro.isNull())
                    mapkey.macro = mapkey.value.toString();
                mapkey.macro += macroPiece(text.sliced(kContinued.size()));
                mapkey.value = mapkey.macro;
            }
            return;
        }
        m_openMapkey = false;
        if (kind == LineKind::Comment || kind == LineKind::Blank)
            return;
        const QStringView rest = skipBlanks(text);
        const QStringView name = firstWord(rest);
        if (name.isEmpty() || name.startsWith(u'!'))
            return; // only tabs, or a comment behind blanks
        const QStringView value = withoutTrailingBlanks(skipBlanks(rest.sliced(name.size())));
        ConfigEntry entry;
        entry.line = line;
        if (name.compare(u"mapkey", Qt::CaseInsensitive) == 0) {
            const QStringView keys = firstWord(value);
            entry.kind = EntryKind::Mapkey;
            entry.name = keys;
            entry.ownKey = u"mapkey "_s.append(keys);
            entry.key = entry.ownKey;
            // A macro of one line stays in the line: a line of hundreds of megabytes is not copied.
            entry.value = macroPiece(skipBlanks(value.sliced(keys.size())));
            m_openMapkey = true;
        } else {
            entry.name = name;
            // Most names are written in lower case: then the key is the name itself, no copy.
            if (std::any_of(name.begin(), name.end(), changesInLowerCase)) {
                entry.ownKey = name.toString().toLower();
                entry.key = entry.ownKey;
            } else {
                entry.key = name;
            }
            entry.value = value;
        }
        m_out.push_back(std::move(entry));
    }

private:
    std::vector<ConfigEntry>& m_out;
    bool m_openMapkey = false;
};

} // namespace

std::vector<ConfigEntry> configEntriesOf(const QStringList& lines) {
    std::vector<ConfigEntry> out;
    out.reserve(size_t(lines.size()));
    EntryReader reader(out);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView text = lines.at(i);
        const int number = int(i + 1);
        qsizetype start = 0;
        qsizetype lf = text.indexOf(u'\n');
        while (lf >= 0) {
            reader.read(text.sliced(start, lf - start), number);
            start = lf + 1;
            lf = text.indexOf(u'\n', start);
        }
        if (start == 0 || start < text.size())
            reader.read(text.sliced(start), number);
    }
    return out;
}

QString comparableValue(QStringView value) {
    QString out;
    out.reserve(value.size());
    bool blank = false;
    for (const QChar c : value) {
        if (isOptionBlank(c)) {
            blank = true;
            continue;
        }
        if (blank && !out.isEmpty())
            out += u' ';
        blank = false;
        out += foldedValueChar(c);
    }
    return out;
}

bool sameSettingValue(EntryKind kind, QStringView a, QStringView b) {
    if (a == b) // the usual case, without folding a character
        return true;
    return kind != EntryKind::Mapkey && sameOptionValue(a, b);
}

} // namespace quenfor
