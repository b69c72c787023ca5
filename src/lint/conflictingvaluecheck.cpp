#include "lint/conflictingvaluecheck.h"

#include "lint/knownnames.h"
#include "lint/linttexts.h"
#include "lint/nameindex.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct Setting {
    int line = 0;
    QStringView value;
};

// Steps through a value the way sameOptionValue compares it: a run of blanks is one blank.
class ValueReader {
public:
    explicit ValueReader(QStringView text) : m_text(text) {}
    bool atEnd() const { return m_at >= m_text.size(); }
    QChar next() {
        const QChar c = m_text[m_at++];
        if (!isOptionBlank(c))
            return foldedValueChar(c);
        while (m_at < m_text.size() && isOptionBlank(m_text[m_at]))
            ++m_at;
        return u' ';
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

// "\"bell\" steht schon in Zeile 3 mit dem Wert \"yes\", hier mit \"no\"; es gilt der letzte.",
// put together piece by piece: a file may hold hundreds of thousands of these.
QString conflictText(QStringView name, const Setting& earlier, QStringView value) {
    QString text;
    text.reserve(120 + name.size());
    text += u'"';
    appendShownText(text, name);
    text += u"\" steht schon in Zeile "_s;
    text += QString::number(earlier.line);
    text += u" mit dem Wert \""_s;
    appendShownText(text, earlier.value);
    text += u"\", hier mit \""_s;
    appendShownText(text, value);
    text += u"\"; es gilt der letzte."_s;
    return text;
}

} // namespace

bool sameOptionValue(QStringView a, QStringView b) {
    if (a.size() == b.size() && a == b) // the usual case, without folding each character
        return true;
    ValueReader ra(a);
    ValueReader rb(b);
    while (!ra.atEnd() && !rb.atEnd()) {
        if (ra.next() != rb.next())
            return false;
    }
    return ra.atEnd() && rb.atEnd();
}

void checkConflictingValues(const std::vector<LintLine>& lines, const NameIndex& names, const QSet<QString>& repeatable,
                            QList<LintFinding>& findings) {
    enum Verdict : char { Open, Compared, Skipped };
    std::vector<Verdict> verdicts(size_t(names.size()), Open);
    std::vector<Setting> settings(size_t(names.size()));
    for (const LintLine& l : lines) {
        if (l.nameId < 0) // nothing but tabs and blanks
            continue;
        if (l.kind != LineKind::Option && l.kind != LineKind::Mapkey && l.kind != LineKind::Favorite)
            continue;
        const auto id = size_t(l.nameId);
        if (verdicts[id] == Open) {
            // Words that cannot be option names are the unknown-name check's business.
            const QString& name = names.name(l.nameId);
            verdicts[id] = looksLikeOptionName(name) && !repeatable.contains(name) ? Compared : Skipped;
        }
        if (verdicts[id] == Skipped)
            continue;
        Setting& earlier = settings[id];
        if (earlier.line > 0 && !sameOptionValue(earlier.value, l.value))
            addFinding(findings, l, FindingKind::ConflictingValue, conflictText(l.name, earlier, l.value));
        earlier = {l.line, l.value};
    }
}

} // namespace quenfor
