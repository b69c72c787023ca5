#include "lint/namesuggester.h"

#include "lint/editdistance.h"

#include <algorithm>
#include <cstdlib>

namespace quenfor {

NameSuggester::NameSuggester(const QSet<QString>& knownLowerCase) {
    QStringList names(knownLowerCase.begin(), knownLowerCase.end());
    std::sort(names.begin(), names.end());
    m_candidates.reserve(size_t(names.size()));
    for (const QString& name : names) {
        const int index = int(m_candidates.size());
        m_candidates.push_back({name, countLetters(name)});
        m_byFirst[name[0].unicode()].push_back(index);
        if (name.size() > 1)
            m_bySecond[name[1].unicode()].push_back(index);
    }
    // Within a bucket by length, so a search looks only at names of about the right length.
    for (auto* table : {&m_byFirst, &m_bySecond}) {
        for (std::vector<int>& bucket : *table) {
            std::stable_sort(bucket.begin(), bucket.end(), [this](int a, int b) {
                return m_candidates[size_t(a)].name.size() < m_candidates[size_t(b)].name.size();
            });
        }
    }
    m_visited.assign(m_candidates.size(), 0);
}

int NameSuggester::reachFor(qsizetype length) {
    if (length <= 5)
        return 1;
    if (length <= 10)
        return 2;
    return 3;
}

NameSuggester::LetterCount NameSuggester::countLetters(QStringView name) {
    LetterCount count{};
    for (const QChar c : name) {
        const char16_t u = c.unicode();
        int bin = 31;
        if (u >= u'a' && u <= u'z')
            bin = u - u'a';
        else if (u >= u'0' && u <= u'9')
            bin = 26 + (u - u'0') % 4;
        else if (u == u'_')
            bin = 30;
        if (count[size_t(bin)] < 255)
            ++count[size_t(bin)];
    }
    return count;
}

QString NameSuggester::suggest(const QString& unknown) {
    if (unknown.isEmpty() || m_candidates.empty())
        return {};
    const int reach = reachFor(unknown.size());
    const LetterCount letters = countLetters(unknown);
    if (++m_visit == 0) { // the stamps wrapped around: start them afresh
        std::fill(m_visited.begin(), m_visited.end(), 0);
        m_visit = 1;
    }

    int bestDistance = reach + 1;
    int bestIndex = -1;
    const auto consider = [&](const std::vector<int>* bucket) {
        if (!bucket)
            return;
        const auto shorter = [this](int index, qsizetype length) {
            return m_candidates[size_t(index)].name.size() < length;
        };
        auto it = std::lower_bound(bucket->begin(), bucket->end(), unknown.size() - reach, shorter);
        for (; it != bucket->end(); ++it) {
            const int index = *it;
            const Candidate& c = m_candidates[size_t(index)];
            if (c.name.size() > unknown.size() + reach)
                break;
            if (m_visited[size_t(index)] == m_visit)
                continue;
            m_visited[size_t(index)] = m_visit;
            // Each edit changes the letter counts by at most two.
            int difference = 0;
            for (size_t k = 0; k < letters.size(); ++k)
                difference += std::abs(int(letters[k]) - int(c.letters[k]));
            if (difference > 2 * std::min(reach, bestDistance))
                continue;
            const int distance = boundedEditDistance(unknown, c.name, std::min(reach, bestDistance));
            if (distance < bestDistance || (distance == bestDistance && index < bestIndex)) {
                bestDistance = distance;
                bestIndex = index;
            }
        }
    };
    const auto bucket = [](const QHash<char16_t, std::vector<int>>& table, QChar c) -> const std::vector<int>* {
        const auto it = table.constFind(c.unicode());
        return it == table.constEnd() ? nullptr : &*it;
    };

    consider(bucket(m_byFirst, unknown[0]));  // the usual typo: somewhere after the first letter
    consider(bucket(m_bySecond, unknown[0])); // a letter missing in front, or the first two swapped
    if (unknown.size() > 1)
        consider(bucket(m_byFirst, unknown[1])); // a letter too many in front
    if (bestIndex < 0 || bestDistance == 0)
        return {};
    return m_candidates[size_t(bestIndex)].name;
}

} // namespace quenfor
