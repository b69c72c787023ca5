#include "lint/releasecheck.h"

#include "knowledge/optionreleases.h"
#include "lint/linttexts.h"
#include "lint/nameindex.h"

using namespace Qt::StringLiterals;

namespace quenfor {

void checkReleaseOptions(const std::vector<LintLine>& lines, const NameIndex& names, const OptionReleases& releases,
                         int release, QList<LintFinding>& findings) {
    const QString& title = cadReleases().at(release).title;
    std::vector<ReleaseStatus> statusOf(size_t(names.size()), ReleaseStatus::NoData);
    std::vector<bool> looked(size_t(names.size()), false);
    for (const LintLine& l : lines) {
        if (!namesAnOption(l))
            continue;
        const auto id = size_t(l.nameId);
        if (!looked[id]) {
            looked[id] = true;
            statusOf[id] = releases.status(names.name(l.nameId), release);
        }
        switch (statusOf[id]) {
        case ReleaseStatus::Unknown:
            addFinding(findings, l, FindingKind::UnknownInRelease,
                       u"\"%1\" gibt es in %2 nicht"_s.arg(shownText(l.name), title));
            break;
        case ReleaseStatus::Hidden:
            addFinding(findings, l, FindingKind::HiddenInRelease,
                       u"\"%1\" ist in %2 eine versteckte Option: sie wirkt, ist aber nicht dokumentiert"_s.arg(
                           shownText(l.name), title));
            break;
        case ReleaseStatus::NoData:
        case ReleaseStatus::Documented:
            break;
        }
    }
}

} // namespace quenfor
