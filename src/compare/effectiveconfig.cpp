#include "compare/effectiveconfig.h"

#include <QHash>

#include <algorithm>

namespace quenfor {

namespace {

// The first eight UTF-16 units of a key in two numbers, so that comparing prefixes orders keys
// as comparing the keys does (a missing unit counts as 0, below every character a key holds).
struct KeyPrefix {
    quint64 high = 0;
    quint64 low = 0;
    auto operator<=>(const KeyPrefix&) const = default;
};

KeyPrefix keyPrefix(QStringView key) {
    KeyPrefix prefix;
    for (qsizetype i = 0; i < 8; ++i) {
        quint64& word = i < 4 ? prefix.high : prefix.low;
        word = (word << 16) | (i < key.size() ? key[i].unicode() : 0u);
    }
    return prefix;
}

class Collector {
public:
    Collector(const QSet<QString>& repeatable, std::vector<QString>& texts, qsizetype expected)
        : m_repeatable(repeatable.cbegin(), repeatable.cend()), m_texts(texts) {
        m_index.reserve(expected);
        m_settings.reserve(size_t(expected));
    }

    void add(ConfigEntry&& entry, int file, bool locking) {
        SettingPlace place{file, entry.line, entry.value};
        if (!entry.macro.isNull()) {
            m_texts.push_back(std::move(entry.macro));
            place.value = m_texts.back(); // a moved QString keeps its buffer
        }
        const auto at = m_index.constFind(entry.key);
        if (at == m_index.cend()) {
            m_index.insert(entry.key, qsizetype(m_settings.size()));
            EffectiveSetting s;
            s.kind = entry.kind;
            s.collects = entry.kind == EntryKind::Option && m_repeatable.contains(entry.key);
            s.locked = locking && !s.collects;
            s.key = entry.key;
            if (!entry.ownKey.isNull())
                m_texts.push_back(std::move(entry.ownKey)); // the key's buffer, kept alive
            s.name = entry.name;
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

    // Sorted by key. The order is found on small items that carry the key's first eight
    // characters, so most comparisons never touch the strings; then the settings move into place.
    std::vector<EffectiveSetting> take() {
        struct Item {
            KeyPrefix prefix;
            size_t index;
        };
        std::vector<Item> order(m_settings.size());
        for (size_t i = 0; i < order.size(); ++i)
            order[i] = {keyPrefix(m_settings[i].key), i};
        std::sort(order.begin(), order.end(), [this](const Item& a, const Item& b) {
            if (a.prefix != b.prefix)
                return a.prefix < b.prefix;
            return m_settings[a.index].key < m_settings[b.index].key;
        });
        // Place by place along each cycle of the permutation, so no second vector is needed:
        // place `at` receives the setting that stood at order[at].index.
        std::vector<bool> done(order.size());
        for (size_t start = 0; start < order.size(); ++start) {
            if (done[start] || order[start].index == start)
                continue;
            EffectiveSetting held = std::move(m_settings[start]);
            for (size_t at = start;;) {
                const size_t from = order[at].index;
                done[at] = true;
                if (from == start) {
                    m_settings[at] = std::move(held);
                    break;
                }
                m_settings[at] = std::move(m_settings[from]);
                at = from;
            }
        }
        return std::move(m_settings);
    }

private:
    const QSet<QStringView> m_repeatable; // views of the caller's names
    std::vector<QString>& m_texts;
    QHash<QStringView, qsizetype> m_index;
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
    qsizetype lines = 0;
    for (const ConfigSource& source : sources)
        lines += source.lines.size();
    Collector collector(repeatable, result.texts, std::min<qsizetype>(lines, 1 << 20));
    for (const int file : result.loadOrder) {
        const ConfigSource& source = sources[size_t(file)];
        for (ConfigEntry& entry : configEntriesOf(source.lines))
            collector.add(std::move(entry), file, source.locking);
    }
    result.settings = collector.take();
    return result;
}

} // namespace quenfor
