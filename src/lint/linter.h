#pragma once

#include "lint/lintfinding.h"
#include "lint/lintrules.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace quenfor {

struct LintResult {
    QList<LintFinding> findings; // in line order; on one line in the order of the checks
    QStringList notes;           // German: checks that could not run, and why
    bool complete = true;        // false when a list beside the program was missing
    bool cancelled = false;
};

// Told the share of the work done (0..100) between the checks; returning false stops the run.
using LintProgress = std::function<bool(int percent)>;

// Checks the lines of a document; `fileName` decides the family (config, .dtl, .pcf,
// search.pro, ...) and the folder that relative search.pro paths start from.
LintResult lintLines(const QStringList& lines, const QString& fileName, const LintOptions& options,
                     const LintProgress& progress = {});

// Checks what the rules of a family decide, with the rules already loaded (a caller that checks
// many files of one family loads them once).
LintResult lintLines(const QStringList& lines, const QString& fileName, const LintRules& rules,
                     const LintOptions& options, const LintProgress& progress = {});

struct LintFileResult {
    bool ok = false;
    QString error; // German, when the file could not be read
    LintResult result;
};

// Reads the file as the editor opens it (code page, line ends) and checks its lines.
LintFileResult lintFile(const QString& path, const LintOptions& options);

} // namespace quenfor
