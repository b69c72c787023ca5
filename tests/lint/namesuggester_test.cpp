// The suggestion "meinten Sie ...?": the edit distance against a plain table, and the bucketed
// search against a look at every known name.
#include "lint/editdistance.h"
#include "lint/knownnames.h"
#include "lint/namesuggester.h"
#include "lintfixture.h"

#include "lint/namelist.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// The whole table, no bound: the textbook optimal string alignment distance.
int plainDistance(QStringView a, QStringView b) {
    const int n = int(a.size());
    const int m = int(b.size());
    // One table in one piece: the test asks this for every known name, thousands of times.
    std::vector<int> table(size_t(n + 1) * size_t(m + 1));
    auto d = [&table, m](int i, int j) -> int& { return table[size_t(i) * size_t(m + 1) + size_t(j)]; };
    for (int i = 0; i <= n; ++i)
        d(i, 0) = i;
    for (int j = 0; j <= m; ++j)
        d(0, j) = j;
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= m; ++j) {
            const int cost = a[i - 1] == b[j - 1] ? 0 : 1;
            int v = std::min({d(i - 1, j) + 1, d(i, j - 1) + 1, d(i - 1, j - 1) + cost});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                v = std::min(v, d(i - 2, j - 2) + 1);
            d(i, j) = v;
        }
    }
    return d(n, m);
}

struct Random {
    std::uint64_t state;
    std::uint32_t below(std::uint32_t n) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return std::uint32_t(state >> 33) % n;
    }
};

QString randomWord(Random& r, int maxLength) {
    QString w;
    const int length = int(r.below(std::uint32_t(maxLength + 1)));
    for (int i = 0; i < length; ++i)
        w += QChar(u'a' + r.below(4)); // few letters: many swaps and matches
    return w;
}

TEST(EditDistanceTest, AgreesWithThePlainTable) {
    Random r{7};
    for (int i = 0; i < 3000; ++i) {
        const QString a = randomWord(r, 9);
        const QString b = randomWord(r, 9);
        const int limit = int(r.below(5));
        EXPECT_EQ(boundedEditDistance(a, b, limit), std::min(plainDistance(a, b), limit + 1))
            << a.toStdString() << " / " << b.toStdString() << " limit " << limit;
    }
}

QSet<QString> shippedNames() {
    const auto names = readNameList(linttest::shippedData() + u"/known_options.txt"_s);
    EXPECT_TRUE(names.has_value());
    return names ? QSet<QString>(names->begin(), names->end()) : QSet<QString>();
}

TEST(NameSuggesterTest, TyposOfRealNames) {
    NameSuggester suggester(shippedNames());
    const struct {
        const char16_t* typo;
        const char16_t* meant;
    } cases[] = {
        {u"dispaly", u"display"},
        {u"isplay", u"display"},   // first letter lost
        {u"idsplay", u"display"},  // first two swapped
        {u"ddisplay", u"display"}, // one too many in front
        {u"bel", u"bell"},
        {u"pro_unit_lenght", u"pro_unit_length"},
        {u"template_solidpat", u"template_solidpart"},
        {u"drawing_setup_fiel", u"drawing_setup_file"},
        {u"trial_dir", u"trail_dir"},
        {u"xyzzy_quux", u""}, // nothing near enough
        {u"qq", u""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(suggester.suggest(QString::fromUtf16(c.typo)), QString::fromUtf16(c.meant))
            << QString::fromUtf16(c.typo).toStdString();
}

// A typo after the first two letters must find a name as close as the best of all names.
TEST(NameSuggesterTest, AsGoodAsLookingAtEveryName) {
    const QSet<QString> known = shippedNames();
    const QStringList names(known.begin(), known.end());
    NameSuggester suggester(known);
    Random r{42};
    for (int i = 0; i < 100; ++i) {
        QString typo = names[int(r.below(std::uint32_t(names.size())))];
        if (typo.size() < 4)
            continue;
        const int at = 2 + int(r.below(std::uint32_t(typo.size() - 2)));
        switch (r.below(3)) {
        case 0:
            typo.remove(at, 1);
            break;
        case 1:
            typo.insert(at, QChar(u'a' + r.below(26)));
            break;
        default:
            typo[at] = QChar(u'a' + r.below(26));
        }
        if (known.contains(typo))
            continue;
        const QString suggestion = suggester.suggest(typo);
        ASSERT_FALSE(suggestion.isEmpty()) << typo.toStdString();
        // No name may come closer than the suggestion. A name whose length differs by at least
        // the best distance so far cannot, so only the others are measured.
        const int suggested = plainDistance(typo, suggestion);
        int best = suggested;
        for (const QString& name : names) {
            if (std::abs(int(name.size()) - int(typo.size())) < best)
                best = std::min(best, plainDistance(typo, name));
        }
        EXPECT_EQ(suggested, best) << typo.toStdString() << " -> " << suggestion.toStdString();
    }
}

} // namespace
