#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace quenfor {

// Option names that count as known, kept in lower case: the CAD system does not care how an
// option is written.
class KnownNames {
public:
    void add(QStringView name);
    void addAll(const QStringList& names);
    // The first word of every option line (picker sources, category lists); comments, mapkeys
    // and indented lines name nothing. Only words made of the characters of option names count.
    void addFirstWordsOf(const QStringList& lines);
    // The names a knowledge base describes: entry lines, each followed by its indented
    // description. A record a user added runs from its entry line over the explanation to a line
    // "***"; only its first line names an option, the explanation's words do not.
    void addKnowledgeBaseEntries(const QStringList& lines);

    bool contains(QStringView name) const;
    const QSet<QString>& names() const { return m_names; }

private:
    QSet<QString> m_names;
};

// True for a word that can be an option name: letters, digits, "_", "-" and ".".
bool looksLikeOptionName(QStringView word);

// `text` in lower case, written into `out`, whose memory is reused from call to call: the checks
// look up a name for every line of files with a million lines.
void lowerCaseInto(QStringView text, QString& out);

} // namespace quenfor
