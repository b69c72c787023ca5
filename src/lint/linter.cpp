#include "lint/linter.h"

#include "knowledge/optionreleases.h"
#include "lint/conflictingvaluecheck.h"
#include "lint/doubledbackslashcheck.h"
#include "lint/lintline.h"
#include "lint/longlinecheck.h"
#include "lint/mapkeychaincheck.h"
#include "lint/missingfoldercheck.h"
#include "lint/nameindex.h"
#include "lint/namesuggester.h"
#include "lint/quotingcheck.h"
#include "lint/releasecheck.h"
#include "lint/repeatedfoldercheck.h"
#include "lint/unixlineendcheck.h"
#include "lint/unknownoptioncheck.h"
#include "lint/valuecheck.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace quenfor {

LintResult lintLines(const QStringList& lines, const QString& fileName, const LintOptions& options,
                     const LintProgress& progress) {
    return lintLines(lines, fileName, loadLintRules(fileFamilyOf(fileName), options), options, progress);
}

LintResult lintLines(const QStringList& lines, const QString& fileName, const LintRules& rules,
                     const LintOptions& options, const LintProgress& progress) {
    LintResult result;
    result.notes = rules.notes;
    result.complete = rules.complete;

    std::vector<LintLine> parsed = lintLinesOf(lines);
    const bool searchPro = rules.family == FamilyKind::SearchPro;
    const bool namesChecked = rules.known.has_value();
    const bool valuesCompared = rules.repeatable.has_value() && !searchPro;
    const bool valuesChecked = rules.values != nullptr;
    std::optional<int> release;
    if (!options.release.isEmpty() && rules.releases) {
        release = cadReleaseIndex(options.release);
        if (!release)
            result.notes.append(u"Die Zielversion \"%1\" ist unbekannt (bekannt sind %2): Optionen werden nicht gegen "
                                "eine Version geprüft."_s.arg(options.release, cadReleaseNames()));
    }
    std::optional<NameIndex> names;
    if (namesChecked || valuesCompared || valuesChecked || release)
        names.emplace(parsed);

    using Check = std::function<void(QList<LintFinding>&)>;
    std::vector<Check> checks;
    checks.push_back([&](auto& out) { checkUnixLineEnds(lines, out); });
    checks.push_back([&](auto& out) { checkMapkeyChains(parsed, out); });
    checks.push_back([&](auto& out) { checkLongLines(parsed, out); });
    if (namesChecked) {
        checks.push_back([&](auto& out) {
            NameSuggester suggester(rules.known->names());
            checkUnknownOptions(parsed, *names, rules.family, *rules.known, suggester, out);
        });
    }
    if (valuesCompared)
        checks.push_back([&](auto& out) { checkConflictingValues(parsed, *names, *rules.repeatable, out); });
    if (valuesChecked)
        checks.push_back([&](auto& out) { checkOptionValues(parsed, *names, *rules.values, out); });
    if (release)
        checks.push_back([&](auto& out) { checkReleaseOptions(parsed, *names, *rules.releases, *release, out); });
    if (searchPro) {
        checks.push_back([&](auto& out) { checkRepeatedFolders(parsed, out); });
        checks.push_back([&](auto& out) { checkDoubledBackslashes(parsed, out); });
        checks.push_back([&](auto& out) { checkQuoting(parsed, out); });
        if (options.checkPaths) {
            const QString base = QFileInfo(fileName).absolutePath();
            checks.push_back([&parsed, base](auto& out) { checkMissingFolders(parsed, base, out); });
        }
    }

    // Reading the lines is the first step, each check one more.
    const int steps = int(checks.size()) + 1;
    const auto goOn = [&](int done) { return !progress || progress(100 * done / steps); };
    for (size_t i = 0; i < checks.size(); ++i) {
        if (!goOn(int(i) + 1)) {
            result.cancelled = true;
            result.findings.clear();
            return result;
        }
        checks[i](result.findings);
    }
    std::stable_sort(result.findings.begin(), result.findings.end(),
                     [](const LintFinding& a, const LintFinding& b) { return a.line < b.line; });
    goOn(steps);
    return result;
}

LintFileResult lintFile(const QString& path, const LintOptions& options) {
    LintFileResult out;
    ReadResult read = readDocumentFile(path, options.encoding);
    if (!read.ok) {
        out.error = read.error;
        return out;
    }
    out.ok = true;
    out.result = lintLines(read.lines, path, options);
    return out;
}

} // namespace quenfor
