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
    // The message quotes the name as written; it is made again only when the spelling changes.
    std::vector<QStringView> spellings(size_t(names.size()));
    std::vector<QString> messages(size_t(names.size()));
    for (const LintLine& l : lines) {
        if (!namesAnOption(l))
            continue;
        const auto id = size_t(l.nameId);
        if (!looked[id]) {
            looked[id] = true;
            statusOf[id] = releases.status(names.name(l.nameId), release);
        }
        const ReleaseStatus status = statusOf[id];
        if (status != ReleaseStatus::Unknown && status != ReleaseStatus::Hidden)
            continue;
        if (messages[id].isNull() || !(spellings[id] == l.name)) {
            messages[id] =
                status == ReleaseStatus::Unknown
                    ? u"\"%1\" gibt es in %2 nicht"_s.arg(shownText(l.name), title)
                    : u"\"%1\" ist in %2 eine versteckte Option: sie wirkt, ist aber nicht dokumentiert"_s.arg(
                          shownText(l.name), title);
            spellings[id] = l.name;
        }
        addFinding(findings, l,
                   status == ReleaseStatus::Unknown ? FindingKind::UnknownInRelease : FindingKind::HiddenInRelease,
                   messages[id]);
    }
}

} // namespace quenfor
