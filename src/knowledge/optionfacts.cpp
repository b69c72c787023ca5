#include "knowledge/optionfacts.h"

#include "knowledge/knowledgebase.h"
#include "knowledge/tablerows.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

const OptionFacts& OptionFacts::builtIn() {
    static const OptionFacts facts = [] {
        QFile file(u":/knowledge/config_option_facts.txt"_s);
        return file.open(QIODevice::ReadOnly) ? parse(QString::fromUtf8(file.readAll())) : OptionFacts();
    }();
    return facts;
}

OptionFacts OptionFacts::parse(const QString& text) {
    OptionFacts facts;
    forEachTableRow(text, 2, [&facts](const QList<QStringView>& fields) {
        OptionFact fact{fields[1].toString(), {}};
        if (fields.size() > 2) {
            for (QStringView value : fields[2].split(u',', Qt::SkipEmptyParts))
                fact.allowedValues.append(value.toString());
        }
        facts.m_facts.insert(fields[0].toString().toLower(), std::move(fact));
    });
    return facts;
}

const OptionFact* OptionFacts::find(QStringView optionName) const {
    const auto it = m_facts.constFind(optionName.toString().toLower());
    return it == m_facts.constEnd() ? nullptr : &*it;
}

QStringList optionFactLines(const OptionFact& fact) {
    QStringList lines;
    if (!fact.defaultValue.isEmpty())
        lines.append(u"Vorgabe: "_s + fact.defaultValue);
    if (!fact.allowedValues.isEmpty())
        lines.append(u"Erlaubte Werte: "_s + fact.allowedValues.join(u", "_s));
    return lines;
}

QStringList allowedValueLines(const OptionFacts& facts, QStringView entry) {
    const QString name = optionNameOf(entry);
    const OptionFact* fact = facts.find(name);
    QStringList lines;
    if (fact) {
        for (const QString& value : fact->allowedValues)
            lines.append(name + u' ' + value);
    }
    return lines;
}

bool optionFactsApplyTo(const QString& knowledgeBasePath) {
    return QFileInfo(knowledgeBasePath).fileName() == u"config_opts.txt";
}

} // namespace quenfor
