#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace quenfor {

// Finds the known name a misspelt one was meant to be ("meinten Sie ...?"). Only names that
// share the first letter, or whose first two letters are the unknown name's swapped, shifted
// or with one dropped, are compared, and a letter count rules most of them out before the edit
// distance is computed.
class NameSuggester {
public:
    explicit NameSuggester(const QSet<QString>& knownLowerCase);

    // The closest known name within reach of a typo (one edit for short names, two for longer
    // ones, three from eleven characters on); empty when none is that close. `unknown` is in
    // lower case. Ties go to the alphabetically first name.
    QString suggest(const QString& unknown);

    // Edits a name of this length may be away from its suggestion.
    static int reachFor(qsizetype length);

private:
    using LetterCount = std::array<std::uint8_t, 32>;
    struct Candidate {
        QString name;
        LetterCount letters;
    };

    static LetterCount countLetters(QStringView name);

    std::vector<Candidate> m_candidates; // sorted by name
    // Indexes into m_candidates by first and by second letter, each bucket by length.
    QHash<char16_t, std::vector<int>> m_byFirst;
    QHash<char16_t, std::vector<int>> m_bySecond;
    std::vector<std::uint32_t> m_visited;
    std::uint32_t m_visit = 0;
};

} // namespace quenfor
