#include "knowledge/optionreleases.h"

#include "knowledge/knowledgebase.h"
#include "knowledge/tablerows.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

OptionReleases readBuiltIn(const QString& resource) {
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? OptionReleases::parse(QString::fromUtf8(file.readAll())) : OptionReleases();
}

std::uint32_t releaseBits(QStringView list) {
    std::uint32_t bits = 0;
    for (QStringView name : list.split(u',', Qt::SkipEmptyParts)) {
        if (const std::optional<int> index = cadReleaseIndex(name.trimmed()))
            bits |= std::uint32_t(1) << *index;
    }
    return bits;
}

} // namespace

const QList<CadRelease>& cadReleases() {
    static const QList<CadRelease> releases = [] {
        QList<CadRelease> list{{u"WF4"_s, u"Pro/ENGINEER Wildfire 4.0"_s}, {u"CEP5"_s, u"Creo Elements/Pro 5.0"_s}};
        for (int version = 2; version <= 11; ++version)
            list.append({u"CP%1"_s.arg(version), u"Creo Parametric %1.0"_s.arg(version)});
        return list;
    }();
    return releases;
}

std::optional<int> cadReleaseIndex(QStringView name) {
    const QList<CadRelease>& releases = cadReleases();
    for (int i = 0; i < releases.size(); ++i) {
        if (name.compare(releases[i].name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return std::nullopt;
}

QString cadReleaseNames() {
    QStringList names;
    for (const CadRelease& release : cadReleases())
        names.append(release.name);
    return names.join(u", "_s);
}

const OptionReleases& OptionReleases::config() {
    static const OptionReleases releases = readBuiltIn(u":/knowledge/config_option_releases.txt"_s);
    return releases;
}

const OptionReleases& OptionReleases::drawingSetup() {
    static const OptionReleases releases = readBuiltIn(u":/knowledge/dtl_option_releases.txt"_s);
    return releases;
}

OptionReleases OptionReleases::parse(const QString& text) {
    OptionReleases releases;
    forEachTableRow(text, 3, [&releases](const QList<QStringView>& fields) {
        releases.m_options.insert(fields[0].toString().toLower(), {releaseBits(fields[1]), releaseBits(fields[2])});
    });
    return releases;
}

ReleaseStatus OptionReleases::status(QStringView optionName, int release) const {
    const auto it = m_options.constFind(optionName.toString().toLower());
    if (it == m_options.constEnd() || release < 0 || release >= cadReleases().size())
        return ReleaseStatus::NoData;
    const std::uint32_t bit = std::uint32_t(1) << release;
    if (it->documented & bit)
        return ReleaseStatus::Documented;
    if (it->hidden & bit)
        return ReleaseStatus::Hidden;
    return ReleaseStatus::Unknown;
}

QString hiddenOptionNote(const OptionReleases& releases, QStringView entry, std::optional<int> release) {
    const int shown = release.value_or(int(cadReleases().size()) - 1);
    const QString name = optionNameOf(entry.trimmed());
    if (name.isEmpty() || releases.status(name, shown) != ReleaseStatus::Hidden)
        return {};
    return u"Versteckte Option: %1 liest sie, dokumentiert sie aber nicht."_s.arg(cadReleases()[shown].title);
}

} // namespace quenfor
