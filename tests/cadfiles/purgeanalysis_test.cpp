#include "cadfiles/purgeanalysis.h"

#include "../common/qstringprinting.h"
#include "purgeoracle.h"

#include <QDir>
#include <QHash>
#include <QRandomGenerator>

#include <cmath>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

QString folderPath() {
    return QDir::toNativeSeparators(u"/w/parts"_s);
}

QStringList inFolder(const QString& folder, const QStringList& names) {
    QStringList paths;
    for (const QString& name : names)
        paths.append(joinFolderAndName(folder, name));
    return paths;
}

struct AnalysisCase {
    const char* label;
    QStringList names;
    QStringList purged;
};

class PurgeAnalysisCases : public ::testing::TestWithParam<AnalysisCase> {};

TEST_P(PurgeAnalysisCases, listsExactlyTheOlderVersions) {
    QStringList names = GetParam().names;
    sortLikeFileList(names);
    EXPECT_EQ(purgeCandidates(folderPath(), names), inFolder(folderPath(), GetParam().purged));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, PurgeAnalysisCases,
    ::testing::Values(
        AnalysisCase{
            "numeric", {u"part.prt.1"_s, u"part.prt.2"_s, u"part.prt.10"_s}, {u"part.prt.1"_s, u"part.prt.2"_s}},
        AnalysisCase{"nineBelowTen", {u"a.drw.9"_s, u"a.drw.10"_s}, {u"a.drw.9"_s}},
        AnalysisCase{"noVersionIsZero", {u"part.prt"_s, u"part.prt.3"_s}, {u"part.prt"_s}},
        AnalysisCase{"otherType", {u"part.prt.3"_s, u"part.asm.4"_s}, {}},
        AnalysisCase{"singleVersions", {u"a.prt.3"_s, u"b.prt.1"_s, u"c.asm.7"_s}, {}},
        AnalysisCase{"equalVersions", {u"a.prt.1"_s, u"a.prt.01"_s}, {}},
        AnalysisCase{"notANumber", {u"a.prt.1"_s, u"a.prt.x"_s, u"a.prt.2"_s}, {u"a.prt.1"_s}},
        AnalysisCase{"onlyNotNumbers", {u"a.prt.x"_s, u"a.prt.y"_s}, {}},
        AnalysisCase{"gaps", {u"g.prt.1"_s, u"g.prt.5"_s, u"g.prt.17"_s, u"h.prt.2"_s}, {u"g.prt.1"_s, u"g.prt.5"_s}},
        AnalysisCase{"caseSensitiveKeys", {u"A.prt.1"_s, u"a.prt.2"_s}, {}}, AnalysisCase{"empty", {}, {}}),
    [](const auto& info) { return std::string(info.param.label); });

// Tab completion adds the separator, and a root always ends in one: the versions must still be read
// whole there, or .21 reads 1 and the newest file goes.
// On Linux "\\" is a character of a name like any other: "a\\5" is no version 5 of a file "5".
TEST(PurgeAnalysis, backslashInANameIsNoFolder) {
    const QString folder = u"/w"_s;
    EXPECT_EQ(purgeCandidates(folder, {u"5"_s, u"a\\5"_s}), QStringList());
    EXPECT_EQ(purgeCandidates(folder, {u"a\\b.prt.1"_s, u"a\\b.prt.2"_s}), QStringList{u"/w/a\\b.prt.1"_s});
}

TEST(PurgeAnalysis, rootOrTrailingSeparatorKeepsTheNewestVersion) {
    for (const QString& folder : {QDir::toNativeSeparators(u"/"_s), QDir::toNativeSeparators(u"/w/teile/"_s)}) {
        SCOPED_TRACE(folder.toStdString());
        EXPECT_EQ(purgeCandidates(folder, {u"part.prt.1"_s, u"part.prt.2"_s}), QStringList{folder + u"part.prt.1"_s});
        EXPECT_EQ(purgeCandidates(folder, {u"housing.asm.19"_s, u"housing.asm.21"_s}),
                  QStringList{folder + u"housing.asm.19"_s});
    }
}

// Only a letter and ":" make a drive: the files ":a.prt.N" in the root are an object of their own
// and never outrank "a.prt".
TEST(PurgeAnalysis, aColonAfterTheRootIsNoDrive) {
#ifndef Q_OS_WIN
    const QStringList purge = purgeCandidates(u"/"_s, {u":a.prt.1"_s, u":a.prt.9"_s, u"a.prt.3"_s, u"a.prt.4"_s});
    EXPECT_EQ(purge, (QStringList{u"/:a.prt.1"_s, u"/a.prt.3"_s}));
#endif
    EXPECT_EQ(splitPath(u"/:a.prt"_s).folder, u"/"_s);
    EXPECT_EQ(splitPath(u"c:\\w\\a.prt"_s).drive, u"c:"_s);
}

TEST(PurgeAnalysis, sortIgnoresCaseThenTakesTheSpelling) {
    QStringList names{u"b.prt.1"_s, u"B.prt.2"_s, u"a.prt.1"_s, u"A.prt.1"_s};
    sortLikeFileList(names);
    EXPECT_EQ(names, (QStringList{u"A.prt.1"_s, u"a.prt.1"_s, u"b.prt.1"_s, u"B.prt.2"_s}));
}

TEST(PurgeAnalysis, sortMatchesUpperCaseOrderForAnyNames) {
    QRandomGenerator random(99);
    const QString letters = u"aAbBzZ.-_0129äÄßéÉ"_s;
    for (bool ascii : {true, false}) {
        QStringList names;
        for (int i = 0; i < 500; ++i) {
            QString name;
            for (int k = random.bounded(1, 6); k > 0; --k)
                name += letters[random.bounded(int(ascii ? 13 : letters.size()))];
            names.append(name);
        }
        names.removeDuplicates();
        QStringList expected = names;
        std::sort(expected.begin(), expected.end(), [](const QString& a, const QString& b) {
            const int order = QString::compare(a.toUpper(), b.toUpper(), Qt::CaseSensitive);
            return order != 0 ? order < 0 : QString::compare(a, b, Qt::CaseSensitive) < 0;
        });
        sortLikeFileList(names);
        EXPECT_EQ(names, expected);
    }
}

TEST(PurgeAnalysis, keyDoublesTheDot) {
    EXPECT_EQ(purgeKey(u"bracket.prt.12"_s), u"bracket..prt"_s);
    EXPECT_EQ(purgeKey(u"a.b.prt.3"_s), u"a..b"_s);
}

// Random names from a small alphabet so that objects, case variants, odd dots, missing and
// non-numeric versions collide often.
QString randomName(QRandomGenerator& random) {
    static const QStringList names{u"a"_s,   u"A"_s, u"b"_s,   u"ab"_s, u"a."_s,  u"a.."_s,
                                   u"x-y"_s, u""_s,  u"C:a"_s, u":a"_s, u"x\\y"_s};
    static const QStringList types{u".prt"_s,   u".PRT"_s, u".asm"_s, u".drw"_s, u".prt."_s,
                                   u".prt.."_s, u".p"_s,   u"."_s,    u""_s};
    static const QStringList versions{u""_s,   u".1"_s,   u".2"_s,   u".9"_s, u".10"_s,  u".11"_s, u".01"_s,
                                      u".x"_s, u".1e1"_s, u".100"_s, u"."_s,  u".3.4"_s, u".-1"_s, u".16777217"_s};
    // One draw after the other: the operands of "+" may be evaluated in any order, and every
    // compiler must test the same names.
    QString name = names[random.bounded(int(names.size()))];
    name += types[random.bounded(int(types.size()))];
    name += versions[random.bounded(int(versions.size()))];
    if (random.bounded(8) == 0)
        name += versions[random.bounded(int(versions.size()))];
    return name;
}

TEST(PurgeAnalysis, agreesWithTheLiteralAllPairsComparison) {
    QRandomGenerator random(20240611);
    const QStringList folders{folderPath(), QDir::toNativeSeparators(u"/"_s), QDir::toNativeSeparators(u"/w/x/"_s)};
    for (int round = 0; round < 3000; ++round) {
        QStringList names;
        const int count = random.bounded(1, 40);
        for (int i = 0; i < count; ++i)
            names.append(randomName(random));
        names.removeDuplicates(); // a folder holds each name once
        sortLikeFileList(names);
        const QString& folder = folders[round % folders.size()];
        const QStringList purge = purgeCandidates(folder, names);
        ASSERT_EQ(purge, testing::literalPurgeAnalysis(folder, names))
            << "folder " << folder.toStdString() << " names " << names.join(u' ').toStdString();
        // Whatever the folder, the highest version of each object stays.
        const QString prefix = joinFolderAndName(folder, QString());
        QHash<QString, std::pair<float, QString>> highest;
        for (const QString& name : names) {
            if (name.contains(u':'))
                continue;
            const PathParts parts = splitPath(name, Separators::Native);
            const QString text = name.mid(parts.name.size() + parts.extension.size() + 1);
            bool ok = false;
            const float version = (text.isEmpty() ? u"0"_s : text).toFloat(&ok);
            if (!ok || !std::isfinite(version))
                continue;
            auto& best = highest[parts.name + u'.' + parts.extension];
            if (best.second.isEmpty() || version > best.first)
                best = {version, name};
        }
        for (auto it = highest.cbegin(); it != highest.cend(); ++it)
            ASSERT_FALSE(purge.contains(prefix + it->second))
                << "the newest " << it->second.toStdString() << " in " << folder.toStdString() << " of "
                << names.join(u' ').toStdString();
    }
}

} // namespace
} // namespace quenfor
