#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace quenfor {

// A release of the CAD system that the option lists know: its short name as the lists and the
// command line write it ("CP6") and its full name for the user ("Creo Parametric 6.0").
struct CadRelease {
    QString name;
    QString title;
};

// Every release the lists know, oldest first.
const QList<CadRelease>& cadReleases();
// The release's place in cadReleases(); the name is compared without regard to case.
std::optional<int> cadReleaseIndex(QStringView name);
// "WF4, CEP5, CP2, ...": the names for a message that lists them.
QString cadReleaseNames();

enum class ReleaseStatus {
    NoData,     // the lists say nothing of this option
    Unknown,    // the release does not know the option
    Documented, // known and documented
    Hidden,     // known, but hidden: the release reads it without documenting it
};

// In which releases an option is documented and in which it is hidden, built into the program
// from data/config_option_releases.txt and data/dtl_option_releases.txt (one option a line: name,
// a tab, the releases where documented, a tab, the releases where hidden, each parted by commas).
class OptionReleases {
public:
    static const OptionReleases& config();
    static const OptionReleases& drawingSetup();
    static OptionReleases parse(const QString& text);

    // Names are compared without regard to case. Where the sources call an option documented
    // and hidden in the same release, documented wins: a user is not warned for what a release
    // documents.
    ReleaseStatus status(QStringView optionName, int release) const;
    qsizetype size() const { return m_options.size(); }

private:
    struct Lists {
        std::uint32_t documented = 0; // bit i: release i of cadReleases()
        std::uint32_t hidden = 0;
    };
    QHash<QString, Lists> m_options;
};

// The tooltip of a picker entry whose option is hidden in `release` (the latest release when
// none is given); empty for any other entry.
QString hiddenOptionNote(const OptionReleases& releases, QStringView entry, std::optional<int> release);

} // namespace quenfor
