#include "lint/lintrules.h"

#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "knowledge/categories.h"
#include "knowledge/optionreleases.h"
#include "knowledge/picker.h"
#include "lint/namelist.h"
#include "lint/valuerule.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The shipped list of every name a family's files may hold; none for families without options.
const char16_t* knownListOf(FamilyKind family) {
    switch (family) {
    case FamilyKind::Config:
        return kKnownOptionsFile;
    case FamilyKind::Dtl:
        return kKnownDtlOptionsFile;
    case FamilyKind::Pcf:
        return kKnownPcfOptionsFile;
    case FamilyKind::None:
    case FamilyKind::SearchPro:
    case FamilyKind::Scl:
        break;
    }
    return nullptr;
}

// The lines of a knowledge base or picker source beside the program; one that is missing or
// unreadable only adds no names, as it fills no picker.
QStringList linesOfFile(const QString& path, const EncodingChoice& encoding) {
    if (!fileExists(path))
        return {};
    ReadResult read = readDocumentFile(path, encoding);
    return read.ok ? std::move(read.lines) : QStringList();
}

QString shownPath(const QString& path) {
    return QDir::toNativeSeparators(path);
}

void loadKnownNames(LintRules& rules, const FileFamily& family, const char16_t* knownList, const LintOptions& options) {
    const QString listPath = joinFolderAndName(options.dataFolder, QString::fromUtf16(knownList));
    const std::optional<QStringList> list = readNameList(listPath);
    if (!list) {
        rules.notes.append(u"Die Liste der bekannten Optionen %1 fehlt oder ist nicht lesbar: "
                           "Optionsnamen werden nicht geprüft."_s.arg(shownPath(listPath)));
        rules.complete = false;
        return;
    }
    KnownNames known;
    known.addAll(*list);

    const QString knowledgeBase = options.knowledgeBase.isEmpty()
                                      ? joinFolderAndName(options.dataFolder, family.knowledgeBaseFile)
                                      : options.knowledgeBase;
    known.addKnowledgeBaseEntries(linesOfFile(knowledgeBase, options.encoding));
    known.addFirstWordsOf(linesOfFile(joinFolderAndName(options.dataFolder, family.optionListFile), options.encoding));
    known.addFirstWordsOf(builtInPickerEntries(family.pickerList));
    if (rules.family == FamilyKind::Config) {
        const CategoryTable& table = CategoryTable::builtIn();
        for (int k = 1; k <= CategoryTable::kCategoryCount; ++k)
            known.addFirstWordsOf(table.strings(k));
    }
    rules.known = std::move(known);
}

void loadRepeatable(LintRules& rules, const LintOptions& options) {
    const QString path = joinFolderAndName(options.dataFolder, QString::fromUtf16(kRepeatableOptionsFile));
    const std::optional<QStringList> list = readNameList(path);
    if (!list) {
        rules.notes.append(u"Die Liste der wiederholbaren Optionen %1 fehlt oder ist nicht lesbar: "
                           "mehrfach gesetzte Optionen werden nicht verglichen."_s.arg(shownPath(path)));
        rules.complete = false;
        return;
    }
    rules.repeatable = QSet<QString>(list->begin(), list->end());
}

} // namespace

LintRules loadLintRules(const FileFamily& family, const LintOptions& options) {
    LintRules rules;
    rules.family = family.kind;
    if (family.kind == FamilyKind::SearchPro)
        return rules; // a list of folders: no options, no values
    if (const char16_t* knownList = knownListOf(family.kind))
        loadKnownNames(rules, family, knownList, options);
    else if (family.kind == FamilyKind::Scl)
        rules.notes.append(u"Für Farbdateien (.scl) gibt es keine Liste der Namen: sie werden nicht geprüft."_s);
    else
        rules.notes.append(u"Der Dateiname zeigt keine bekannte Art (.pro, .sup, .dtl, .pcf, search.pro): "
                           "Optionsnamen werden nicht geprüft."_s);
    if (family.kind == FamilyKind::Config) {
        rules.values = &ValueRules::builtIn();
        rules.releases = &OptionReleases::config();
    } else if (family.kind == FamilyKind::Dtl) {
        rules.releases = &OptionReleases::drawingSetup();
    }
    loadRepeatable(rules, options);
    return rules;
}

} // namespace quenfor
