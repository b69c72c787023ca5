#include "lint/unknownoptioncheck.h"

#include "lint/knownnames.h"
#include "lint/linttexts.h"
#include "lint/nameindex.h"
#include "lint/namesuggester.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString unknownText(FamilyKind family, QStringView name) {
    switch (family) {
    case FamilyKind::Dtl:
        return u"Unbekannte Zeichnungsoption \"%1\""_s.arg(shownText(name));
    case FamilyKind::Pcf:
        return u"Unbekannte Plotteroption \"%1\""_s.arg(shownText(name));
    default:
        return u"Unbekannte Option \"%1\""_s.arg(shownText(name));
    }
}

} // namespace

void checkUnknownOptions(const std::vector<LintLine>& lines, const NameIndex& names, FamilyKind family,
                         const KnownNames& known, NameSuggester& suggester, QList<LintFinding>& findings) {
    // Worked out once per name: whether it is known, and the message with its suggestion. The
    // message quotes the name as first written; another spelling of it gets a message of its own.
    enum Verdict : char { Open, Known, Unknown };
    std::vector<Verdict> verdicts(size_t(names.size()), Open);
    std::vector<QStringView> spellings(size_t(names.size()));
    std::vector<QString> messages(size_t(names.size()));
    std::vector<QString> suggestions(size_t(names.size()));

    for (const LintLine& l : lines) {
        if (!namesAnOption(l))
            continue;
        const auto id = size_t(l.nameId);
        if (verdicts[id] == Open) {
            const QString& lower = names.name(l.nameId);
            if (known.names().contains(lower)) {
                verdicts[id] = Known;
                continue;
            }
            verdicts[id] = Unknown;
            suggestions[id] = suggester.suggest(lower);
        }
        if (verdicts[id] == Known)
            continue;
        if (messages[id].isNull() || !(spellings[id] == l.name)) {
            QString text = unknownText(family, l.name);
            if (!suggestions[id].isEmpty())
                text += u" – meinten Sie \"%1\"?"_s.arg(suggestions[id]);
            messages[id] = text;
            spellings[id] = l.name;
        }
        addFinding(findings, l, FindingKind::UnknownOption, messages[id]);
    }
}

} // namespace quenfor
