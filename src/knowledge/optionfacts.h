#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace quenfor {

// What is known of a config option besides its explanation: its default and the values it allows.
struct OptionFact {
    QString defaultValue;      // empty when not known
    QStringList allowedValues; // empty when not known
};

// The facts of the config options, built into the program from data/config_option_facts.txt
// (one option a line: name, a tab, the default, a tab, the allowed values parted by commas).
class OptionFacts {
public:
    static const OptionFacts& builtIn();
    static OptionFacts parse(const QString& text);

    // Option names are compared without regard to case, as the CAD system reads them.
    const OptionFact* find(QStringView optionName) const;
    qsizetype size() const { return m_facts.size(); }
    // Every option with facts, in lower case, in no particular order.
    QStringList names() const { return m_facts.keys(); }

private:
    QHash<QString, OptionFact> m_facts;
};

// The lines shown under an explanation: "Vorgabe: …" and "Erlaubte Werte: …", each only when known.
QStringList optionFactLines(const OptionFact& fact);

// The lines the picker offers for an entry: its option name, a blank and each allowed value.
QStringList allowedValueLines(const OptionFacts& facts, QStringView entry);

// The facts apply to the config family's knowledge base only.
bool optionFactsApplyTo(const QString& knowledgeBasePath);

} // namespace quenfor
