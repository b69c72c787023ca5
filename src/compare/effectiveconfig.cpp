#include "compare/effectiveconfig.h"

#include <QHash>

#include <algorithm>

namespace quenfor {

namespace {

class Collector {
public:
    explicit Collector(const QSet<QString>& repeatable) : m_repeatable(repeatable) {}

    void add(ConfigEntry&& entry, int file, bool locking) {
        SettingPlace place{file, entry.line, std::move(entry.value)};
        const auto at = m_index.constFind(entry.key);
        if (at == m_index.cend()) {
            m_index.insert(entry.key, qsizetype(m_settings.size()));
            EffectiveSetting s;
            s.kind = entry.kind;
            s.collects = entry.kind == EntryKind::Option && m_repeatable.contains(entry.key);
            s.locked = locking && !s.collects;
            s.key = std::move(entry.key);
            s.name = std::move(entry.name);
            s.inEffect.push_back(std::move(place));
            m_settings.push_back(std::move(s));
            return;
        }
        EffectiveSetting& s = m_settings[size_t(at.value())];
        if (s.collects) {
            s.inEffect.push_back(std::move(place));
        } else if (s.locked && !locking) {
            // Repeating the config.sup's own value changes nothing, so nothing is refused.
            if (!sameSettingValue(s.kind, s.inEffect.front().value, place.value))
                s.refused.push_back(std::move(place));
        } else {
            s.overridden.push_back(std::move(s.inEffect.front()));
            s.inEffect.front() = std::move(place);
            s.locked = s.locked || locking;
        }
    }

    std::vector<EffectiveSetting> take() {
        std::sort(m_settings.begin(), m_settings.end(),
                  [](const EffectiveSetting& a, const EffectiveSetting& b) { return a.key < b.key; });
        return std::move(m_settings);
    }

private:
    const QSet<QString>& m_repeatable;
    QHash<QString, qsizetype> m_index;
    std::vector<EffectiveSetting> m_settings;
};

} // namespace

EffectiveConfig effectiveConfig(const std::vector<ConfigSource>& sources, const QSet<QString>& repeatable) {
    EffectiveConfig result;
    for (int pass = 0; pass < 2; ++pass) {
        for (size_t i = 0; i < sources.size(); ++i) {
            if (sources[i].locking == (pass == 0))
                result.loadOrder.push_back(int(i));
        }
    }
    Collector collector(repeatable);
    for (const int file : result.loadOrder) {
        const ConfigSource& source = sources[size_t(file)];
        for (ConfigEntry& entry : configEntriesOf(source.lines))
            collector.add(std::move(entry), file, source.locking);
    }
    result.settings = collector.take();
    return result;
}

} // namespace quenfor
