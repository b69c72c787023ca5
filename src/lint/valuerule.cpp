#include "lint/valuerule.h"

#include "lint/editdistance.h"
#include "lint/namesuggester.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

std::optional<double> numberOf(QStringView text) {
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok ? std::optional<double>(number) : std::nullopt;
}

// Keywords as the lists write them: letters, digits and "_", "-", "." (vrml2.0), "+".
bool isKeyword(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'_' || c == u'-' || c == u'.' || c == u'+';
    });
}

} // namespace

ValueRule ValueRule::of(const OptionFact& fact) {
    ValueRule rule;
    rule.m_listed = fact.allowedValues;
    // One value is an example of what goes there, not a choice.
    if (fact.allowedValues.size() < 2)
        return rule;
    for (const QString& value : fact.allowedValues) {
        const QString lower = value.trimmed().toLower();
        if (const std::optional<double> number = numberOf(lower))
            rule.m_numbers.push_back(*number);
        else if (isKeyword(lower))
            rule.m_words.append(lower);
        else
            return rule; // a placeholder such as <path> or free text: nothing to compare with
    }
    rule.m_shape = rule.m_words.isEmpty()   ? ValueShape::Numbers
                   : rule.m_numbers.empty() ? ValueShape::Words
                                            : ValueShape::WordsAndNumbers;
    // A list that does not hold the option's own default describes some other spelling (values
    // with their blanks dropped, say): trusting it would flag correct files.
    const QString defaultValue = fact.defaultValue.trimmed();
    if (!defaultValue.isEmpty() && !rule.allows(defaultValue))
        rule.m_shape = ValueShape::Unchecked;
    return rule;
}

bool ValueRule::allows(QStringView word) const {
    if (m_shape == ValueShape::Unchecked)
        return true;
    if (!m_numbers.empty()) {
        if (const std::optional<double> number = numberOf(word))
            return std::find(m_numbers.begin(), m_numbers.end(), *number) != m_numbers.end();
    }
    return std::any_of(m_words.begin(), m_words.end(), [word](const QString& listed) {
        return word.size() == listed.size() && word.compare(listed, Qt::CaseInsensitive) == 0;
    });
}

QString ValueRule::suggestionFor(QStringView word) const {
    // A wrong number is no typo of another: 3 was not meant to be 2.
    if (numberOf(word))
        return {};
    const QString lower = word.toString().toLower();
    const int reach = NameSuggester::reachFor(lower.size());
    QString best;
    int bestDistance = reach + 1;
    for (const QString& listed : m_listed) {
        if (numberOf(listed))
            continue;
        const int distance = boundedEditDistance(lower, listed.toLower(), reach);
        if (distance < bestDistance) {
            best = listed;
            bestDistance = distance;
        }
    }
    return best;
}

const ValueRules& ValueRules::builtIn() {
    static const ValueRules rules(OptionFacts::builtIn());
    return rules;
}

ValueRules::ValueRules(const OptionFacts& facts) {
    for (const QString& name : facts.names()) {
        ValueRule rule = ValueRule::of(*facts.find(name));
        if (rule.shape() != ValueShape::Unchecked)
            m_rules.insert(name, std::move(rule));
    }
}

const ValueRule* ValueRules::find(const QString& lowerName) const {
    const auto it = m_rules.constFind(lowerName);
    return it == m_rules.constEnd() ? nullptr : &*it;
}

} // namespace quenfor
