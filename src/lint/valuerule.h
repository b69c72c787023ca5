#pragma once

#include "knowledge/optionfacts.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace quenfor {

// What the list of allowed values of an option lets the check compare.
enum class ValueShape {
    Unchecked,       // no list, or one that only hints at the value: a single example, free text, a
                     // path placeholder, or a list that does not even hold the option's default
    Words,           // keywords: the value is one of them, in any case
    Numbers,         // numbers: the value is a number equal to one of them (2 and 2.0 alike)
    WordsAndNumbers, // keywords and numbers mixed, such as off,2,4,8,16
};

// The values an option allows, as the check compares them.
class ValueRule {
public:
    static ValueRule of(const OptionFact& fact);

    ValueShape shape() const { return m_shape; }
    const QStringList& listed() const { return m_listed; }
    // `word` is the first word of the value; compared as the CAD system reads it, without
    // regard to case. An unchecked rule allows everything.
    bool allows(QStringView word) const;
    // The listed keyword `word` was most likely meant to be, within reach of a typo; empty when
    // none is that close, and for numbers.
    QString suggestionFor(QStringView word) const;

private:
    ValueShape m_shape = ValueShape::Unchecked;
    QStringList m_listed; // as the facts list them
    QStringList m_words;  // the keywords in lower case; few, so a scan beats hashing a copy
    std::vector<double> m_numbers;
};

// The rules of every config option whose allowed values can be checked, worked out once from the
// built-in facts.
class ValueRules {
public:
    static const ValueRules& builtIn();
    explicit ValueRules(const OptionFacts& facts);

    // `lowerName` in lower case; null when the option's values are not checked.
    const ValueRule* find(const QString& lowerName) const;

private:
    QHash<QString, ValueRule> m_rules;
};

} // namespace quenfor
