#include "cadfiles/findpattern.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

char32_t folded(QChar c) {
    return c.toCaseFolded().unicode();
}

} // namespace

FindPattern::FindPattern(QStringView pattern) {
    m_empty = pattern.isEmpty();
    if (pattern == u"*.*")
        pattern = u"*";
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        const QChar next = i + 1 < pattern.size() ? pattern[i + 1] : QChar();
        if (c == u'*')
            m_tokens.push_back({next == u'.' ? Kind::RunBeforeLastDot : Kind::AnyRun, 0});
        else if (c == u'?')
            m_tokens.push_back({Kind::OneOrNone, 0});
        else if (c == u'.' && (next.isNull() || next == u'*' || next == u'?'))
            m_tokens.push_back({Kind::DotOrEnd, 0});
        else
            m_tokens.push_back({Kind::Literal, folded(c)});
    }
}

bool FindPattern::matches(QStringView name) const {
    if (m_empty)
        return false;
    // One entry per (token, position): the runs would otherwise try the same rest many times over.
    std::vector<signed char> memo((m_tokens.size() + 1) * size_t(name.size() + 1), -1);
    return matchFrom(0, 0, name, name.lastIndexOf(u'.'), memo);
}

bool FindPattern::matchFrom(size_t token, qsizetype position, QStringView name, qsizetype lastDot,
                            std::vector<signed char>& memo) const {
    if (token == m_tokens.size())
        return position == name.size();
    signed char& known = memo[token * size_t(name.size() + 1) + size_t(position)];
    if (known >= 0)
        return known != 0;

    const bool atEnd = position == name.size();
    bool result = false;
    switch (m_tokens[token].kind) {
    case Kind::Literal:
        result = !atEnd && folded(name[position]) == m_tokens[token].folded &&
                 matchFrom(token + 1, position + 1, name, lastDot, memo);
        break;
    case Kind::AnyRun:
        result = matchFrom(token + 1, position, name, lastDot, memo) ||
                 (!atEnd && matchFrom(token, position + 1, name, lastDot, memo));
        break;
    case Kind::RunBeforeLastDot:
        result = matchFrom(token + 1, position, name, lastDot, memo) ||
                 (!atEnd && position != lastDot && matchFrom(token, position + 1, name, lastDot, memo));
        break;
    case Kind::OneOrNone:
        if (atEnd || name[position] == u'.')
            result = matchFrom(token + 1, position, name, lastDot, memo);
        else
            result = matchFrom(token + 1, position + 1, name, lastDot, memo);
        break;
    case Kind::DotOrEnd:
        if (atEnd)
            result = matchFrom(token + 1, position, name, lastDot, memo);
        else
            result = name[position] == u'.' && matchFrom(token + 1, position + 1, name, lastDot, memo);
        break;
    }
    known = result ? 1 : 0;
    return result;
}

QString wildcardRulesHelp() {
    return u"  Muster (dieselbe Regel für find und clean, wie bei der Dateisuche von Windows):\n"
           "    *  beliebig viele Zeichen, aber nie der letzte Punkt des Namens, wenn ein \".\" folgt;\n"
           "       \"*.*\" ist dasselbe wie \"*\", \"*.\" findet Namen ohne Punkt\n"
           "    ?  ein Zeichen; vor einem Punkt und am Namensende auch keines\n"
           "    .  vor \"*\", \"?\" oder am Ende passt auch dort, wo der Name keinen Punkt mehr hat\n"
           "    Groß-/Kleinschreibung egal; alle anderen Zeichen (auch \"[\" und \"]\") stehen für sich.\n"_s;
}

} // namespace quenfor
