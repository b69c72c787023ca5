#include "../common/qstringprinting.h"
#include "categorysortoracle.h"
#include "document/cleanuptools.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"

#include <QRandomGenerator>

#include <numeric>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

CategoryTable tableFrom(const QString& body) {
    QString text;
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k)
        text += u'[' + CategoryTable::names()[k] + u"]\n"_s + (k == 2 || k == 6 ? body : u"! X\n"_s) + u'\n';
    QString error;
    auto table = CategoryTable::fromText(text, &error);
    EXPECT_TRUE(table.has_value()) << error.toStdString();
    return *table;
}

} // namespace

TEST(CategorySort, MatchesTheLiteralNestedLoop) {
    const CategoryTable table = tableFrom(u"! KOPF\ncolor\ncolor_windows\ndisp\ndisplay\nsave\n"_s);
    const QStringList pieces = {u"color 1"_s,
                                u"color_windows all"_s,
                                u"display shade"_s,
                                u"disp"_s,
                                u"save_objects x"_s,
                                u"mapkey a"_s,
                                u"mapkey(continued) b"_s,
                                u""_s,
                                u"! c"_s,
                                u" color 2"_s,
                                u"browser_favorite f"_s,
                                u"zzz"_s,
                                u"! Baugruppe -----------------------"_s};
    QRandomGenerator rng(42);
    for (int round = 0; round < 2000; ++round) {
        QStringList doc;
        const int n = rng.bounded(0, 25);
        for (int i = 0; i < n; ++i)
            doc.append(pieces[rng.bounded(pieces.size())]);
        ASSERT_EQ(sortByCategory(doc, table), quenfor::testing::literalCategorySort(doc, table))
            << doc.join(u'|').toStdString();
    }
}

TEST(CategorySort, EveryBuiltInListClaimsItsOptions) {
    // Each option of every list, as a line with a value, and the sort against the literal rule.
    const CategoryTable& table = CategoryTable::builtIn();
    QStringList doc;
    for (int k = CategoryTable::kCategoryCount; k >= 1; --k) {
        for (const QString& option : table.strings(k).mid(1))
            doc.append(option + u" wert"_s);
    }
    doc.append({u"mapkey a @MAPKEY_LABEL"_s, u"unbekannte_option 1"_s, u"! alt"_s});
    QList<int> seen;
    const QStringList sorted = sortByCategory(doc, table, [&seen](int index) { seen.append(index); });
    EXPECT_EQ(sorted, quenfor::testing::literalCategorySort(doc, table));
    QList<int> all(CategoryTable::kCategoryCount);
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(seen, all);
    // Every option line lands in a section before the last header; only the three others follow it.
    const qsizetype last = sorted.indexOf(QString::fromUtf16(kCategorySortLastHeader));
    EXPECT_EQ(sorted.mid(last + 1), QStringList({u"mapkey a @MAPKEY_LABEL"_s, u"unbekannte_option 1"_s, u"! alt"_s}));
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        const qsizetype header = sorted.indexOf(categoryHeader(k));
        ASSERT_GE(header, 0) << k;
        // The first option of each list is in its own section unless an earlier section claimed it.
        const QString line = table.strings(k)[1] + u" wert"_s;
        const qsizetype at = sorted.indexOf(line);
        EXPECT_TRUE(at > 0 && at < last) << line.toStdString();
    }
}

TEST(CategorySort, SectionsAndTheLastOne) {
    const CategoryTable table = tableFrom(u"! KOPF\ncolor\ncolor_windows\n"_s);
    const QStringList sorted =
        sortByCategory({u"mapkey a"_s, u"color_windows all"_s, u" color 2"_s, u"zzz"_s, u"color 1"_s}, table);
    // Baugruppe (index 2) claims both lines by "color"; Color (index 6) then has nothing new.
    EXPECT_EQ(sorted.mid(0, 5),
              QStringList({u"! Anwendung -----------------------"_s, u"! Baugruppe -----------------------"_s,
                           u"color_windows all"_s, u"color 1"_s, u"! Baugruppenprozess -----------------------"_s}));
    EXPECT_EQ(sorted.mid(sorted.size() - 4),
              QStringList({u"! nicht zugeornete Schalter, Mapkeys, Favoriten : ----------"_s, u"mapkey a"_s,
                           u" color 2"_s, u"zzz"_s}));
    // An empty document: 31 bare headers and the last header.
    EXPECT_EQ(sortByCategory({}, table).size(), 32);
}

// Each built-in list is a header comment and then option names only, sorted: a blank or a comment
// would claim lines no category means.
TEST(CategoryTable, EveryBuiltInListIsAHeaderAndSortedOptionNames) {
    const CategoryTable& table = CategoryTable::builtIn();
    for (int k = 1; k <= CategoryTable::kCategoryCount; ++k) {
        const QStringList& list = table.strings(k);
        ASSERT_GE(list.size(), 2) << k;
        EXPECT_TRUE(list.first().startsWith(u"! "_s)) << k;
        EXPECT_TRUE(std::is_sorted(list.begin() + 1, list.end())) << k;
        for (const QString& option : list.mid(1))
            EXPECT_TRUE(!option.isEmpty() && !option.contains(u' ') && !option.startsWith(u'!')) << k;
    }
    QString error;
    EXPECT_FALSE(CategoryTable::fromText(u"[Nirgendwo]\n! X\n"_s, &error).has_value());
    EXPECT_FALSE(error.isEmpty());
}
