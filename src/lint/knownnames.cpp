#include "lint/knownnames.h"

#include "document/linekind.h"
#include "lint/lintline.h"

namespace quenfor {

bool looksLikeOptionName(QStringView word) {
    if (word.isEmpty())
        return false;
    for (const QChar c : word) {
        const char16_t u = c.unicode();
        const bool ok = (u >= u'a' && u <= u'z') || (u >= u'A' && u <= u'Z') || (u >= u'0' && u <= u'9') || u == u'_' ||
                        u == u'-' || u == u'.';
        if (!ok)
            return false;
    }
    return true;
}

void lowerCaseInto(QStringView text, QString& out) {
    out.resize(text.size());
    QChar* to = out.data();
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u < 0x80)
            *to++ = QChar(u >= u'A' && u <= u'Z' ? char16_t(u + 32) : u);
        else
            *to++ = c.toLower();
    }
}

void KnownNames::add(QStringView name) {
    if (!name.isEmpty())
        m_names.insert(name.toString().toLower());
}

void KnownNames::addAll(const QStringList& names) {
    for (const QString& name : names)
        add(name);
}

namespace {

bool isUnindentedOptionLine(const QString& line) {
    return !line.isEmpty() && !isOptionBlank(line.front()) && classifyLine(line) == LineKind::Option;
}

QStringView firstWordOf(const QString& line) {
    qsizetype end = 0;
    while (end < line.size() && !isOptionBlank(line[end]))
        ++end;
    return QStringView(line).first(end);
}

} // namespace

void KnownNames::addFirstWordsOf(const QStringList& lines) {
    for (const QString& line : lines) {
        if (!isUnindentedOptionLine(line))
            continue;
        if (const QStringView word = firstWordOf(line); looksLikeOptionName(word))
            add(word);
    }
}

void KnownNames::addKnowledgeBaseEntries(const QStringList& lines) {
    // Unindented lines in a row; a description line, a blank line or "***" ends the run.
    QStringList run;
    const auto endRun = [&](bool userRecord) {
        addFirstWordsOf(userRecord ? run.mid(0, 1) : run);
        run.clear();
    };
    for (const QString& line : lines) {
        if (line.trimmed() == u"***")
            endRun(true);
        else if (isUnindentedOptionLine(line))
            run.append(line);
        else
            endRun(false);
    }
    endRun(false);
}

bool KnownNames::contains(QStringView name) const {
    QString lower;
    lowerCaseInto(name, lower);
    return m_names.contains(lower);
}

} // namespace quenfor
