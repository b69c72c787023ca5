#include "../common/qstringprinting.h"
#include "document/configdocument.h"
#include "knowledge/mapkeytools.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// The duplicate search as first designed: every pair of positions, then the repeats removed.
QStringList literalDuplicates(const QStringList& lines) {
    QStringList collection;
    for (const QString& line : lines) {
        if (line.left(7) == u"mapkey ")
            collection.append(line);
    }
    QStringList found;
    for (qsizetype i = 0; i < collection.size(); ++i) {
        for (qsizetype j = 0; j < collection.size(); ++j) {
            if (i != j && collection[i] == collection[j])
                found.append(collection[i]);
        }
    }
    if (found.size() < 2)
        return {};
    QStringList kept;
    for (const QString& entry : found) {
        if (!kept.contains(entry))
            kept.append(entry);
    }
    return kept;
}

// The name scan as first designed, character by character with positions counted from 1.
QStringList literalNames(const QStringList& lines) {
    QStringList names;
    for (const QString& line : lines) {
        if (line.left(7) != u"mapkey ")
            continue;
        QString name;
        for (qsizetype position = 8; position <= line.size() - 2; ++position) {
            const QChar c = line.at(position - 1);
            if (c == u' ') {
                names.append(name);
                break;
            }
            name += c;
        }
    }
    return names;
}

// Every entry against every line.
QList<int> literalMatches(const QStringList& lines, const QStringList& entries) {
    QList<int> rows;
    for (const QString& entry : entries) {
        for (int i = 0; i < lines.size(); ++i) {
            if (lines[i].startsWith(entry.left(18)) && !rows.contains(i))
                rows.append(i);
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

// Lines built from few pieces, so that equal lines, near misses and short lines are frequent.
QStringList randomDocument(QRandomGenerator& random, int count) {
    const QStringList heads = {u"mapkey "_s, u"mapkey  "_s, u"Mapkey "_s, u"mapkey(continued) "_s,
                               u"mapkey"_s,  u"display "_s, u""_s};
    const QStringList pieces = {u"a"_s, u"ab"_s, u" "_s, u"$F2 "_s, u"@MAPKEY_LABEL "_s, u"~ Command `x`;"_s,
                                u"A"_s, u"\\"_s, u"ä"_s};
    QStringList lines;
    for (int i = 0; i < count; ++i) {
        QString line = heads[random.bounded(int(heads.size()))];
        const int parts = random.bounded(5);
        for (int p = 0; p < parts; ++p)
            line += pieces[random.bounded(int(pieces.size()))];
        lines.append(line);
    }
    return lines;
}

struct NameCase {
    QString line;
    std::optional<QString> name;
};

} // namespace

TEST(MapkeyTools, NameFollowsTheScanRule) {
    const NameCase cases[] = {
        {u"mapkey a bc"_s, u"a"_s},
        {u"mapkey $F2 @MAPKEY_LABEL Zeichnung;~ Command `ProCmdDwgNew`;"_s, u"$F2"_s},
        {u"mapkey  xy"_s, u""_s},       // two blanks: the empty name
        {u"mapkey abc de"_s, u"abc"_s}, // the blank is the last character scanned
        {u"mapkey abc d"_s, {}},        // the blank stands among the last two characters
        {u"mapkey a b"_s, {}},
        {u"mapkey ab  "_s, {}},
        {u"mapkey abcdef"_s, {}}, // no blank at all
        {u"mapkey a\tb cd"_s, u"a\tb"_s},
        {u"mapkey "_s, {}},
        {u"mapkey"_s, {}},
        {u""_s, {}},
        {u"mapkey(continued) a b c d"_s, {}},
        {u"Mapkey a bc"_s, {}},
        {u" mapkey a bc"_s, {}},
        {u"mapkey\ta bc"_s, {}},
    };
    for (const NameCase& c : cases) {
        EXPECT_EQ(mapkeyName(c.line), c.name) << c.line.toStdString();
        EXPECT_EQ(isMapkeyFirstLine(c.line), c.line.startsWith(u"mapkey "_s)) << c.line.toStdString();
    }
}

TEST(MapkeyTools, DuplicateEntries) {
    const QString a = u"mapkey a @MAPKEY_LABEL eins;"_s;
    const QString b = u"mapkey b @MAPKEY_LABEL zwei;"_s;
    const QString cont = u"mapkey(continued) ~ Command `x`;"_s;
    struct Case {
        const char* what;
        QStringList lines;
        QStringList expected;
    };
    const Case cases[] = {
        {"no mapkeys", {u"display shade"_s, u""_s, u""_s}, {}},
        {"single mapkeys", {a, b, cont}, {}},
        {"three equal lines give one entry", {a, a, u"x"_s, a}, {a}},
        {"order of first appearance", {b, a, a, b}, {b, a}},
        {"interleaved", {a, b, b, a, b}, {a, b}},
        {"case counts", {a, a.toUpper(), a.left(7) + u"A"_s + a.mid(8)}, {}},
        {"a trailing blank counts", {a, a + u' '}, {}},
        {"continuation lines are not compared", {cont, cont, u"mapkey"_s, u"mapkey"_s}, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(duplicateMapkeyLines(c.lines), c.expected) << c.what;
}

TEST(MapkeyTools, AgreesWithTheLiteralLoops) {
    QRandomGenerator random(20261121);
    for (int round = 0; round < 300; ++round) {
        const QStringList lines = randomDocument(random, random.bounded(1, 60));
        const QStringList duplicates = duplicateMapkeyLines(lines);
        ASSERT_EQ(duplicates, literalDuplicates(lines)) << "round " << round;
        ASSERT_EQ(mapkeyNames(lines), literalNames(lines)) << "round " << round;

        // Marks for every entry, for each single entry, and for arbitrary lines as entries.
        ASSERT_EQ(linesMatchingEntries(lines, duplicates), literalMatches(lines, duplicates)) << "round " << round;
        for (const QString& entry : duplicates)
            ASSERT_EQ(linesMatchingEntries(lines, {entry}), literalMatches(lines, {entry})) << "round " << round;
        const QStringList someLines = lines.mid(0, 3);
        ASSERT_EQ(linesMatchingEntries(lines, someLines), literalMatches(lines, someLines)) << "round " << round;
    }
}

TEST(MapkeyTools, MarkKeyIsTheFirstEighteenCharacters) {
    const QString entry = u"mapkey ab @MAPKEY_LABEL eins;"_s; // key "mapkey ab @MAPKEY_"
    const QStringList lines = {
        entry,
        u"mapkey ab @MAPKEY_LABEL anders;"_s, // same 18 characters
        u"mapkey ab @MAPKEY"_s,               // shorter than the key
        u"mapkey ab @MAPKEY_"_s,              // exactly the key
        u"mapkey ab @mapkey_LABEL eins;"_s,   // differs in case inside the key
        u" mapkey ab @MAPKEY_LABEL eins;"_s,
    };
    EXPECT_EQ(linesMatchingEntries(lines, {entry}), (QList<int>{0, 1, 3}));
    EXPECT_EQ(linesMatchingEntries(lines, {u"mapkey ab @MAPKEY"_s}), (QList<int>{0, 1, 2, 3}));
    EXPECT_TRUE(linesMatchingEntries(lines, {}).isEmpty());
}

TEST(MapkeyTools, MarkingAddsToTheSelectionWithOneNotification) {
    const QString a = u"mapkey a @MAPKEY_LABEL eins;"_s;
    ConfigDocument doc;
    doc.appendLines({u"display shade"_s, a, u"mapkey(continued) ~ x;"_s, a, u"mapkey b @MAPKEY_LABEL zwei;"_s});
    doc.setSelected(0, true);
    int notifications = 0;
    QList<int> scrolledTo;
    QObject::connect(&doc, &ConfigDocument::selectionChanged, [&] { ++notifications; });
    QObject::connect(&doc, &ConfigDocument::scrollRequested, [&](int row) { scrolledTo.append(row); });

    EXPECT_EQ(markDuplicateLines(doc, duplicateMapkeyLines(doc.lines())), 2);
    EXPECT_EQ(doc.selectedRows(), (QList<int>{0, 1, 3}));
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(scrolledTo, QList<int>{1});

    // Marking again changes nothing and says so by staying quiet; no match neither scrolls.
    EXPECT_EQ(markDuplicateLines(doc, {a}), 2);
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(markDuplicateLines(doc, {u"mapkey zz"_s}), 0);
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(scrolledTo, (QList<int>{1, 1}));
    EXPECT_EQ(doc.selectedRows(), (QList<int>{0, 1, 3}));
}
