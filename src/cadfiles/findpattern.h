#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace quenfor {

// A file name pattern as the Windows directory search reads it, so that patterns typed out of
// habit ("*.*", "*.", "bracket.prt*", "a?.drw") find on every platform what they find there:
// - "*" is any run of characters; "*.*" is the same as "*";
// - "*" before a "." never swallows the name's last dot, so "*." finds names without any dot;
// - "?" is one character, or nothing at a dot or at the end of the name;
// - a "." before "*", "?" or at the end may also stand for the missing dot of a name without one;
// - letters match regardless of case.
// An empty pattern matches nothing. The finder and the clean's pattern list both use this rule.
class FindPattern {
public:
    explicit FindPattern(QStringView pattern);

    bool matches(QStringView name) const;

private:
    enum class Kind : unsigned char { Literal, AnyRun, RunBeforeLastDot, OneOrNone, DotOrEnd };
    struct Token {
        Kind kind;
        char32_t folded; // the case-folded character of a literal
    };

    bool matchFrom(size_t token, qsizetype position, QStringView name, qsizetype lastDot,
                   std::vector<signed char>& memo) const;

    std::vector<Token> m_tokens;
    bool m_empty = false;
};

// The rule above in German, as lines for a command's --help.
QString wildcardRulesHelp();

} // namespace quenfor
