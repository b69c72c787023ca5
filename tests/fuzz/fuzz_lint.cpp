// The config checks on any lines of any file family: no crash, no hang, and every finding names
// a line that exists, with a message.
#include "fuzzinput.h"

#include "common/programfolders.h"
#include "document/filefamily.h"
#include "lint/linter.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const names[] = {"config.pro",  "CONFIG.SUP", "format.dtl",
                                        "plotter.pcf", "search.pro", "farben.scl"};
    static LintOptions options = [] {
        LintOptions o;
        o.dataFolder = programDataFolder();
        return o;
    }();
    // Half the runs also check against a target release.
    static const LintOptions withRelease = [] {
        LintOptions o = options;
        o.release = QStringLiteral("CP6");
        return o;
    }();
    // Loading the lists once per family keeps each run about the lines, as a real check of many files.
    static const QList<LintRules> rules = [] {
        QList<LintRules> all;
        for (const char* name : names)
            all.append(loadLintRules(fileFamilyOf(QString::fromLatin1(name)), options));
        return all;
    }();

    fuzz::FuzzInput input(data, size);
    const int family = input.byte() % 6;
    const bool release = input.byte() % 2 == 1;
    const QStringList lines = input.lines(200);
    const LintResult result =
        lintLines(lines, QString::fromLatin1(names[family]), rules[family], release ? withRelease : options);
    for (const LintFinding& finding : result.findings) {
        if (finding.line < 1 || finding.line > lines.size())
            fuzz::fail("a finding on a line that does not exist");
        if (finding.message.isEmpty())
            fuzz::fail("a finding without a message");
    }
    return 0;
}
