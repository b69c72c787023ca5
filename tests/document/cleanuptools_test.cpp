#include "testsupport.h"

#include "document/cleanuptools.h"
#include "document/collatedsort.h"
#include "document/documentfile.h"
#include "document/linecollator.h"

#include <QCollator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using test::rows;

const QLocale german(QLocale::German, QLocale::Germany);

// Random lines of every kind. A small alphabet and short words make repeats likely.
class Random {
public:
    explicit Random(QString alphabet) : m_alphabet(std::move(alphabet)) {}

    int pick(int max) { return std::uniform_int_distribution<int>(0, max)(m_rng); }
    QString text(int maxLength) {
        QString text;
        for (int n = pick(maxLength); n > 0; --n)
            text += m_alphabet[pick(int(m_alphabet.size()) - 1)];
        return text;
    }
    QStringList document(int maxLines, int maxWord) {
        static const QStringList starts = rows(u"mapkey |mapkey(continued) |! |browser_favorite |BROWSER_FAVORITE ");
        QStringList lines;
        for (int n = pick(maxLines); n > 0; --n) {
            const int kind = pick(8);
            lines.append(kind < 5 ? starts[kind] + text(maxWord) : kind == 5 ? QString(pick(2), u' ') : text(maxWord));
        }
        return lines;
    }

private:
    std::mt19937 m_rng{20240611};
    QString m_alphabet;
};

TEST(BlankLineRemovalTest, DropsBlankLinesAndCollapsesInnerRuns) {
    const QStringList lines = rows(u"display  shade|   ||\t|  trail_dir   C:\\a  b  |mapkey  k  @M;|!  Kommentar|x");
    const QStringList expected = rows(u"display shade|\t| trail_dir C:\\a b |mapkey k @M;|! Kommentar|x");
    EXPECT_EQ(removeBlankLines(lines), expected);

    ConfigDocument doc;
    test::setUp(doc, lines, 1, {1});
    EXPECT_EQ(removeBlankLines(doc), u"temporäre Datei gespeichert"_s);
    EXPECT_EQ(doc.lines(), expected);
    EXPECT_EQ(doc.marked(), -1);
}

QStringList literalDuplicateRemoval(const QStringList& lines) {
    QStringList kept;
    for (const QString& line : lines) {
        if (line.isEmpty() || line.startsWith(u"mapkey"_s) || !kept.contains(line))
            kept.append(line);
    }
    return kept;
}

TEST(DuplicateRemovalTest, KeepsMapkeysAndEmptyLinesAndIsCaseSensitive) {
    EXPECT_EQ(removeDuplicateLines(rows(u"mapkey a @X;|mapkey a @X;|||! c|! c|opt A|opt a|opt a |opt a|  |  |"
                                        u"mapkey(continued) ;|mapkey(continued) ;")),
              rows(u"mapkey a @X;|mapkey a @X;|||! c|opt A|opt a|opt a |  |mapkey(continued) ;|mapkey(continued) ;"));
    ConfigDocument doc;
    EXPECT_EQ(removeDuplicateLines(doc), u"kein Inhalt"_s);
}

TEST(DuplicateRemovalTest, AgreesWithTheLiteralQuadraticVersion) {
    Random random(u"ab A"_s);
    for (int i = 0; i < 5000; ++i) {
        const QStringList lines = random.document(40, 3);
        SCOPED_TRACE(testing::PrintToString(lines));
        ASSERT_EQ(removeDuplicateLines(lines), literalDuplicateRemoval(lines));
    }
}

TEST(SortTest, SortsOptionsAndDropsTheFirst) {
    const struct {
        const char16_t* lines;
        const char16_t* expected;
    } cases[] = {
        // "_" before digits before letters, and the first sorted line is gone
        {u"zeta 1|Alpha 2|_hidden 3|9lives 4|beta 5|alpha 1", u"9lives 4|alpha 1|Alpha 2|beta 5|zeta 1"},
        {u"Zoom yes|abc no|zoom_x|ZOOM no", u"ZOOM no|Zoom yes|zoom_x"}, // case does not count
        {u"b||a|| ", u"| |a|b"},                                         // one blank line is lost
        {u"mapkey z @X;|zeta|! c|browser_favorite f|BROWSER_FAVORITE F|alpha|mapkey(continued) y|beta",
         u"beta|BROWSER_FAVORITE F|zeta|mapkey z @X;|! c|browser_favorite f|mapkey(continued) y"},
        {u"! b|! a", u"! b|! a"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(sortLinesAlphabetically(rows(c.lines), german), rows(c.expected));
    ConfigDocument doc;
    test::setUp(doc, rows(cases[0].lines), 0, {0});
    EXPECT_EQ(sortLinesAlphabetically(doc, german), u"sortieren..."_s);
    EXPECT_EQ(doc.lines(), rows(cases[0].expected));
    EXPECT_EQ(doc.marked(), -1);
}

QCollator listBoxCollator(const QLocale& locale) {
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

QStringList literalSort(const QStringList& lines, const QCollator& collator) {
    QStringList sorted;
    QStringList behind;
    for (const QString& line : lines) {
        const bool stays =
            line.startsWith(u"mapkey"_s) || line.startsWith(u'!') || line.startsWith(u"browser_favorite"_s);
        (stays ? behind : sorted).append(line);
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
    if (!sorted.isEmpty())
        sorted.removeFirst();
    return sorted + behind;
}

const QString sortAlphabet = u"aAbBcChHzZ019 _-.,;:!/\\$~\t\x01\x7f\näÄßé"_s;

TEST(SortTest, FastOrderAgreesWithTheCollator) {
    const LineCollator fast(german);
    ASSERT_TRUE(fast.hasAsciiTable()) << "the fast ASCII order is not in use";
    const QCollator collator = listBoxCollator(german);
    Random random(sortAlphabet);
    for (int i = 0; i < 20000; ++i) {
        const QString a = random.text(6);
        const QString b = random.text(6);
        const int byTable = fast.compare(a, b);
        const int byCollator = collator.compare(a, b);
        ASSERT_TRUE((byTable < 0) == (byCollator < 0) && (byTable == 0) == (byCollator == 0))
            << testing::PrintToString(a) << " vs " << testing::PrintToString(b);
    }

    // German sorts ASCII lines by the table, Czech (where "ch" is one letter) by the collator's keys.
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    ASSERT_FALSE(LineCollator(czech).hasAsciiTable());
    for (const QLocale& locale : {german, czech}) {
        SCOPED_TRACE(locale.name().toStdString());
        const QCollator oracle = listBoxCollator(locale);
        // Each sort learns the ASCII order afresh, so a few long documents rather than many short ones.
        for (int i = 0; i < 20; ++i) {
            const QStringList lines = random.document(600, 6);
            SCOPED_TRACE(testing::PrintToString(lines));
            ASSERT_EQ(sortLinesAlphabetically(lines, locale), literalSort(lines, oracle));
        }
    }
}

// Configuration lines share long option names: ties on the packed prefix must go on behind it,
// and the two halves of a parallel sort must merge into the order of one stable sort.
TEST(SortTest, LongSharedPrefixesAndParallelHalvesAgreeWithTheCollator) {
    const QStringList heads = rows(u"drawing_setup_file|DRAWING_SETUP_FILE_|drawing_setup_fi|drawing\x01_setup_file|"
                                   u"drawing_setup_fil\u00e4|drawing_setup_file  |pro_library_directory_x|");
    Random random(sortAlphabet);
    for (const QLocale& locale : {german, QLocale(QLocale::Czech, QLocale::CzechRepublic)}) {
        const LineCollator& collator = LineCollator::forLocale(locale);
        const QCollator oracle = listBoxCollator(locale);
        for (int round = 0; round < 30; ++round) {
            QStringList lines;
            for (int n = random.pick(300); n > 0; --n)
                lines.append(heads[random.pick(int(heads.size()) - 1)] + random.text(4));
            std::vector<int> expected(size_t(lines.size()));
            std::iota(expected.begin(), expected.end(), 0);
            std::stable_sort(expected.begin(), expected.end(),
                             [&](int a, int b) { return oracle.compare(lines[a], lines[b]) < 0; });
            for (size_t parallelFrom : {size_t(2), size_t(1) << 30}) {
                std::vector<int> sorted(size_t(lines.size()));
                std::iota(sorted.begin(), sorted.end(), 0);
                sortLineIndexes(lines, sorted, collator, parallelFrom);
                ASSERT_EQ(sorted, expected) << locale.name().toStdString() << " parallel from " << parallelFrom << ": "
                                            << testing::PrintToString(lines);
            }
        }
    }
}

TEST(LowerCaseTest, LowersAllButCommentsAndMapkeys) {
    EXPECT_EQ(lowerCaseLines(rows(u"DISPLAY_LAYER_COLOR YES|! Kommentar GROSS|mapkey A @MAPKEY_LABELX;|"
                                  u"mapkey(continued) ~ Close `A`;|MAPKEY A @X;|BROWSER_FAVORITE NORMEN C:\\CAD|"
                                  u"Trail_Dir C:\\Temp\\ÄÖÜ")),
              rows(u"display_layer_color yes|! Kommentar GROSS|mapkey A @MAPKEY_LABELX;|"
                   u"mapkey(continued) ~ Close `A`;|mapkey a @x;|browser_favorite normen c:\\cad|"
                   u"trail_dir c:\\temp\\äöü"));
}

// The repair as first written: the file is read again for every line, the k-th line is taken
// with its end and appended, and every LF of the buffer becomes a CR once per character added.
QStringList literalRepair(const QString& text, qsizetype lineCount) {
    auto lineWithEnd = [&](qsizetype k, QString* line) {
        qsizetype pos = 0;
        for (qsizetype n = 1; pos < text.size(); ++n) {
            qsizetype end = text.indexOf(u'\r', pos);
            end = end < 0 ? text.size() : end + (text.mid(end, 2) == u"\r\n"_s ? 2 : 1);
            if (n == k) {
                *line = text.mid(pos, end - pos);
                return true;
            }
            pos = end;
        }
        return false;
    };
    QString buffer;
    QString line;
    for (qsizetype k = 1; k <= lineCount && lineWithEnd(k, &line); ++k) {
        buffer += line;
        for (qsizetype i = 0; i < line.size(); ++i)
            buffer.replace(u'\n', u'\r');
    }
    QStringList lines = buffer.split(u'\r'); // no LF is left to pair with a CR
    if (buffer.isEmpty() || buffer.endsWith(u'\r'))
        lines.removeLast();
    return lines;
}

TEST(RepairTest, LfOnlyTextGetsItsLinesAndCrLfTextGainsEmptyLines) {
    EXPECT_EQ(repairFragmentedText(u"a\nb\nc\n"_s, 1), rows(u"a|b|c"));
    EXPECT_EQ(repairFragmentedText(u"a\r\nb\r\n"_s, 2), rows(u"a||b|"));
    EXPECT_EQ(repairFragmentedText(u"a\r\nb\r\n"_s, 1), rows(u"a|")); // the document had fewer lines
    EXPECT_EQ(repairFragmentedText(u"a\nb"_s, 5), rows(u"a|b"));      // or more
    EXPECT_EQ(repairFragmentedText(u"a\nb"_s, 0), QStringList());
    EXPECT_EQ(repairSaveQuestion(u"C:\\cad\\config.pro"_s),
              u"Wollen Sie die Datei C:\\cad\\config.pro vorher speichern ?"_s);
}

TEST(RepairTest, AgreesWithTheLiteralVersion) {
    Random random(u"ab \r\n\n"_s);
    for (int i = 0; i < 5000; ++i) {
        const QString text = random.text(30);
        const qsizetype count = random.pick(int(text.count(u'\r')) + 2);
        SCOPED_TRACE(testing::PrintToString(text) + " lines: " + std::to_string(count));
        ASSERT_EQ(repairFragmentedText(text, count), literalRepair(text, count));
    }
}

// The command line repairs while reading, with every LF read as a line end, instead of holding
// the file as bytes and as text; that must give what the repair of the whole text gives.
TEST(RepairTest, ReadingLineFeedsAsLineEndsIsTheRepairOfTheFile) {
    const QByteArray alphabet[] = {"a", " ", "\r", "\n", "\r\n", "\xC3\xA4", "\xE4", "\xEF\xBB\xBF", "\xE2\x82"};
    std::mt19937 rng(7);
    QTemporaryDir dir;
    const QString path = dir.filePath(u"unix.pro"_s);
    for (int i = 0; i < 800; ++i) {
        QByteArray bytes;
        for (int n = std::uniform_int_distribution<int>(0, 12)(rng); n > 0; --n)
            bytes += alphabet[std::uniform_int_distribution<int>(0, std::size(alphabet) - 1)(rng)];
        SCOPED_TRACE(bytes.toHex(' ').toStdString());
        const QStringList repaired =
            repairFragmentedText(decodeText(bytes, {}), readDocumentBytes(bytes, {}).lines.size());
        const ReadResult read = readDocumentBytes(bytes, {}, LineFeeds::EndLine);
        ASSERT_TRUE(read.ok);
        ASSERT_EQ(read.lines, repaired);
        EXPECT_FALSE(read.lineFeedsOnly);
        if (i % 20 == 0) {
            ASSERT_TRUE(test::writeBytes(path, bytes));
            const ReadResult fromFile = readDocumentFile(path, {}, LineFeeds::EndLine);
            ASSERT_TRUE(fromFile.ok);
            ASSERT_EQ(fromFile.lines, repaired);
            EXPECT_EQ(fromFile.encoding, read.encoding);
        }
    }
}

} // namespace
} // namespace quenfor
