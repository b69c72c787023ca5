#include "lint/valuecheck.h"

#include "lint/linttexts.h"
#include "lint/nameindex.h"
#include "lint/valuerule.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr qsizetype kShownValues = 8; // more make the message longer than the line it is about

// "Wert "shaded" ist für display nicht erlaubt – erlaubt: wireframe, hiddenvis, …; meinten Sie "shade"?"
QString valueText(QStringView name, QStringView word, const ValueRule& rule, const QString& suggestion) {
    QString text;
    text.reserve(160);
    text += u"Wert \""_s;
    appendShownText(text, word);
    text += u"\" ist für "_s;
    appendShownText(text, name);
    text += u" nicht erlaubt – erlaubt: "_s;
    const QStringList& listed = rule.listed();
    for (qsizetype i = 0; i < listed.size() && i < kShownValues; ++i) {
        if (i > 0)
            text += u", "_s;
        text += listed[i];
    }
    if (listed.size() > kShownValues)
        text += u", …"_s;
    if (!suggestion.isEmpty())
        text += u"; meinten Sie \"%1\"?"_s.arg(suggestion);
    return text;
}

bool hasValue(const LintLine& l) {
    // A mapkey, a continuation or a favourite holds no option value.
    return l.nameId >= 0 && l.kind == LineKind::Option;
}

} // namespace

QStringView checkedValueWord(QStringView value) {
    qsizetype end = 0;
    while (end < value.size() && !isOptionBlank(value[end]))
        ++end;
    const QStringView word = value.first(end);
    if (word.isEmpty() || word.startsWith(u'"') || word.startsWith(u'\'') || word.contains(u'$'))
        return {};
    return word;
}

void checkOptionValues(const std::vector<LintLine>& lines, const NameIndex& names, const ValueRules& rules,
                       QList<LintFinding>& findings) {
    // The rule of each name is looked up once; the suggestion once for each wrong value of a name.
    std::vector<const ValueRule*> ruleOf(size_t(names.size()), nullptr);
    std::vector<bool> looked(size_t(names.size()), false);
    std::vector<QHash<QString, QString>> suggestions(size_t(names.size())); // by value in lower case
    for (const LintLine& l : lines) {
        if (!hasValue(l))
            continue;
        const auto id = size_t(l.nameId);
        if (!looked[id]) {
            looked[id] = true;
            ruleOf[id] = rules.find(names.name(l.nameId));
        }
        const ValueRule* rule = ruleOf[id];
        if (!rule)
            continue;
        const QStringView word = checkedValueWord(l.value);
        if (word.isEmpty() || rule->allows(word))
            continue;
        QHash<QString, QString>& known = suggestions[id];
        const QString key = word.toString().toLower();
        auto suggestion = known.constFind(key);
        if (suggestion == known.constEnd())
            suggestion = known.insert(key, rule->suggestionFor(word));
        addFinding(findings, l, FindingKind::InvalidValue, valueText(l.name, word, *rule, *suggestion));
    }
}

} // namespace quenfor
