#include "lint/mapkeychaincheck.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A mapkey line that ends in "\" says that the next line goes on with it. Blanks after the "\"
// are left over from editors and do not change that. An option line may end in "\" too: there
// it closes a folder path and announces nothing.
bool announcesContinuation(const LintLine& l) {
    const bool mapkeyLine = l.kind == LineKind::Continuation || (l.kind == LineKind::Mapkey && l.name == u"mapkey");
    return mapkeyLine && withoutTrailingBlanks(l.text).endsWith(u'\\');
}

} // namespace

void checkMapkeyChains(const std::vector<LintLine>& lines, QList<LintFinding>& findings) {
    bool previousAnnounces = false;
    for (size_t i = 0; i < lines.size(); ++i) {
        const LintLine& l = lines[i];
        if (l.kind == LineKind::Continuation && !previousAnnounces)
            addFinding(findings, l, FindingKind::MapkeyChain,
                       u"Fortsetzungszeile ohne Mapkey davor: die Zeile darüber endet nicht mit \"\\\"."_s);
        previousAnnounces = announcesContinuation(l);
        if (!previousAnnounces)
            continue;
        if (i + 1 == lines.size())
            addFinding(findings, l, FindingKind::MapkeyChain,
                       u"Die Zeile endet mit \"\\\", aber danach kommt keine Zeile mehr."_s);
        else if (lines[i + 1].kind != LineKind::Continuation)
            addFinding(findings, l, FindingKind::MapkeyChain,
                       u"Die Zeile endet mit \"\\\", aber die nächste Zeile setzt das Mapkey nicht fort "
                       "(sie beginnt nicht mit \"mapkey(continued) \")."_s);
    }
}

} // namespace quenfor
