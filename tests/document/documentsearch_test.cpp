#include "document/documentsearch.h"
#include "testsupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const QStringList kLines = {
    u"! Pfade"_s,                                   // 0
    u"pro_format_dir C:\\ptc\\formate"_s,           // 1
    u"mapkey a @MAPKEY_LABEL Ansicht;"_s,           // 2
    u""_s,                                          // 3
    u"mapkey(continued) ~ Command `ProCmdView`;"_s, // 4
    u"! Änderungen nur über die Administration"_s,  // 5
    u"MAPKEY A @MAPKEY_LABEL Groß;"_s,              // 6
};

// The wrap-around search written the slow, obvious way: walk n steps from the line after `after`.
int nextByWalking(const QStringList& lines, const QString& text, int after) {
    const int n = int(lines.size());
    for (int step = 1; step <= n; ++step) {
        const int i = ((after + step) % n + n) % n;
        if (lines.at(i).contains(text, Qt::CaseInsensitive))
            return i;
    }
    return -1;
}

} // namespace

TEST(FindNextLine, AgreesWithWalkingRoundTheDocumentFromEveryStart) {
    const QStringList terms = {u"mapkey"_s, u"!"_s, u"formate"_s, u"nirgends"_s, u"ü"_s, u" "_s};
    for (const QString& term : terms) {
        for (int after = -1; after < kLines.size(); ++after) {
            const LineHit hit = findNextLine(kLines, term, after);
            EXPECT_EQ(hit.index, nextByWalking(kLines, term, after)) << term.toStdString() << " after " << after;
            EXPECT_EQ(hit.wrapped, hit.index >= 0 && hit.index <= after) << term.toStdString() << " after " << after;
        }
    }
}

TEST(FindNextLine, IgnoresCaseIncludingUmlautsUnlessAskedNotTo) {
    EXPECT_EQ(findNextLine(kLines, u"ÄNDERUNGEN"_s, -1).index, 5);
    EXPECT_EQ(findNextLine(kLines, u"groß"_s, -1).index, 6);
    EXPECT_EQ(findNextLine(kLines, u"MAPKEY A"_s, -1).index, 2);
    EXPECT_EQ(findNextLine(kLines, u"MAPKEY A"_s, -1, Qt::CaseSensitive).index, 6);
}

TEST(FindNextLine, EmptyTextOrDocumentFindsNothing) {
    EXPECT_EQ(findNextLine(kLines, QString(), -1).index, -1);
    EXPECT_EQ(findNextLine({}, u"a"_s, -1).index, -1);
    EXPECT_TRUE(findAllLines(kLines, QString()).isEmpty());
}

TEST(FindAllLines, ListsEveryHitInOrder) {
    EXPECT_EQ(findAllLines(kLines, u"mapkey"_s), (QList<int>{2, 4, 6}));
    EXPECT_EQ(findAllLines(kLines, u"mapkey "_s, Qt::CaseSensitive), (QList<int>{2}));
}

TEST(SelectFirstLineContaining, SelectsMarksAndShowsOnlyThatLine) {
    ConfigDocument doc;
    test::setUp(doc, kLines, 1, {0, 1, 3});
    QList<int> scrolled;
    QObject::connect(&doc, &ConfigDocument::scrollRequested, &doc, [&](int i) { scrolled.append(i); });

    EXPECT_EQ(selectFirstLineContaining(doc, u"MAPKEY A"_s, Qt::CaseSensitive), 6);
    EXPECT_EQ(doc.selectedRows(), QList<int>{6});
    EXPECT_EQ(doc.marked(), 6);
    EXPECT_EQ(scrolled, QList<int>{6});
}

TEST(SelectFirstLineContaining, WithoutHitLeavesMarkAndSelectionAlone) {
    ConfigDocument doc;
    test::setUp(doc, kLines, 1, {0, 3});
    int scrolls = 0;
    QObject::connect(&doc, &ConfigDocument::scrollRequested, &doc, [&](int) { ++scrolls; });

    EXPECT_EQ(selectFirstLineContaining(doc, u"mapkey zz"_s), -1);
    EXPECT_EQ(selectFirstLineContaining(doc, QString()), -1);
    EXPECT_EQ(doc.selectedRows(), (QList<int>{0, 3}));
    EXPECT_EQ(doc.marked(), 1);
    EXPECT_EQ(scrolls, 0);
}

TEST(SearchKnowledgeBase, FindsLinesWithFileLineNumbersAcrossBothLineEnds) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(u"config_opts.txt"_s);
    // A shipped entry with CR LF, then a record the user added: CR inside, CR LF at the end;
    // windows-1252 for the umlaut. A lone LF is no line end.
    ASSERT_TRUE(test::writeBytes(path, "display shade\r\nDarstellung der Modelle\r\n"
                                       "trail_dir C:\\temp\rVerzeichnis f\xfcr Trail-Dateien\r***\r\n"
                                       "eins\nDISPLAY zwei\r\n"));

    const KnowledgeSearch found = searchKnowledgeBase(path, u"display"_s);
    ASSERT_TRUE(found.ok) << found.error.toStdString();
    EXPECT_EQ(found.lines.size(), 6);
    ASSERT_EQ(found.hits.size(), 2);
    EXPECT_EQ(found.hits[0].lineNumber, 1);
    EXPECT_EQ(found.hits[0].text, u"display shade"_s);
    EXPECT_EQ(found.hits[1].lineNumber, 6);
    EXPECT_EQ(found.hits[1].text, u"eins\nDISPLAY zwei"_s);

    const KnowledgeSearch umlaut = searchKnowledgeBase(path, u"FÜR"_s);
    ASSERT_EQ(umlaut.hits.size(), 1);
    EXPECT_EQ(umlaut.hits[0].lineNumber, 4);
    EXPECT_EQ(umlaut.hits[0].text, u"Verzeichnis für Trail-Dateien"_s);

    EXPECT_TRUE(searchKnowledgeBase(path, u"nirgends"_s).ok);
    EXPECT_TRUE(searchKnowledgeBase(path, u"nirgends"_s).hits.isEmpty());
}

TEST(SearchKnowledgeBase, MissingOrUnreadableFileGivesAGermanMessage) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString missing = QString::fromUtf16(kKnowledgeBaseMissing);

    KnowledgeSearch found = searchKnowledgeBase(dir.filePath(u"config_opts.txt"_s), u"a"_s);
    EXPECT_FALSE(found.ok);
    EXPECT_EQ(found.error, missing);
    EXPECT_EQ(searchKnowledgeBase(QString(), u"a"_s).error, missing);

    // A folder in the file's place is there but cannot be read: the reader's own reason.
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"dtl_opts.txt"_s));
    found = searchKnowledgeBase(dir.filePath(u"dtl_opts.txt"_s), u"a"_s);
    EXPECT_FALSE(found.ok);
    EXPECT_TRUE(found.error.contains(u"Verzeichnis"_s)) << found.error.toStdString();
}
