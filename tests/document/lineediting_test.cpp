#include "testsupport.h"

#include "document/entrylinecheck.h"
#include "document/lineediting.h"
#include "document/mapkeysplitter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace quenfor {
namespace {

using test::FakeClipboard;
using test::rows;
using test::setUp;

TEST(LineEditingTest, EntryLineIsPlacedByTheMarkedLine) {
    enum Op { Insert, Enter, Comment };
    const QString inserted = u"Eintrag in Liste eingefügt"_s;
    const QString appended = u"an Liste angehängt"_s;
    const struct {
        const char16_t* lines;
        int marked;
        QList<int> selected;
        Op op;
        QString entry;
        const char16_t* expected;
        QString status;
    } cases[] = {
        {u"a||c", 1, {1}, Insert, u"x"_s, u"a|x|c", inserted},       // a gap is filled
        {u"a|b|c", 1, {1}, Insert, u"x"_s, u"a|x|b|c", inserted},    // the marked line moves down
        {u"a|b", 1, {1}, Insert, u"x"_s, u"a|x|b", inserted},        // also at the last line
        {u"a||c", 1, {}, Insert, u"x"_s, u"a||c|x", appended},       // marked but unselected
        {u"a", -1, {0}, Insert, u"x"_s, u"a|x", appended},           // no mark
        {u"", -1, {}, Insert, u"x"_s, u"x", appended},               // empty document
        {u"a|b|c", 1, {1}, Enter, u"x"_s, u"a|x|c", inserted},       // Enter replaces in place
        {u"a|b|c|d", 1, {1, 3}, Enter, u"x"_s, u"a|x|c|", inserted}, // other selected lines go
        {u"a|b", -1, {0}, Enter, u"x"_s, u"|b|x", appended},         // no mark: emptied, appended
        {u"a|b", 1, {1}, Enter, {}, u"a|b", {}},                     // empty entry line
        {u"a|b", 1, {1}, Comment, {}, u"a|! |b", inserted},          // comment above
        {u"a", -1, {}, Comment, {}, u"a|! ", appended},              // comment appended
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(QString::fromUtf16(c.lines).toStdString() + " <- " + c.entry.toStdString());
        ConfigDocument doc;
        setUp(doc, rows(c.lines), c.marked, c.selected);
        const QString status = c.op == Insert  ? insertEntryLine(doc, c.entry)
                               : c.op == Enter ? enterEntryLine(doc, c.entry)
                                               : insertCommentLine(doc);
        EXPECT_EQ(doc.lines(), rows(c.expected));
        EXPECT_EQ(status, c.status);
    }
}

TEST(LineEditingTest, DeletingLeavesEmptyLinesInPlace) {
    ConfigDocument doc;
    setUp(doc, rows(u"l0|l1|l2|l3|l4|l5|l6|l7|l8|l9"), 3, {3, 5});
    EXPECT_EQ(deleteSelectedLines(doc), u"löschen..."_s);
    EXPECT_EQ(doc.lines(), rows(u"l0|l1|l2||l4||l6|l7|l8|l9"));
    deleteAllLines(doc);
    EXPECT_TRUE(doc.isEmpty());
    EXPECT_EQ(doc.marked(), -1);
}

TEST(LineEditingTest, MovingTheMarkedLine) {
    const struct {
        bool toTop;
        int marked;
        const char16_t* expected;
        int markedAfter;
    } cases[] = {
        {false, 2, u"a|c|b|d|e", 1}, {false, 0, u"a|b|c|d|e", 0}, {false, -1, u"a|b|c|d|e", -1},
        {true, 3, u"d|a|b|c|e", 0},  {true, 0, u"a|b|c|d|e", 0},  {true, -1, u"a|b|c|d|e", -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.toTop ? "to top from " : "up from ") + std::to_string(c.marked));
        ConfigDocument doc;
        setUp(doc, rows(u"a|b|c|d|e"), c.marked, {1, 4});
        c.toTop ? moveMarkedLineToTop(doc) : moveMarkedLineUp(doc);
        EXPECT_EQ(doc.lines(), rows(c.expected));
        EXPECT_EQ(doc.marked(), c.markedAfter);
        if (c.markedAfter != c.marked) {
            EXPECT_EQ(doc.selectedRows(), QList<int>{c.markedAfter});
        }
    }
}

TEST(LineEditingTest, CopyAndCutPutEverySelectedLineWithCrLfOnTheClipboard) {
    ConfigDocument doc;
    FakeClipboard clipboard;
    setUp(doc, rows(u"a|b|c|d"), 1, {1, 3});
    EXPECT_EQ(copySelectedLines(doc, clipboard), u"in Zwischenablage..."_s);
    EXPECT_EQ(clipboard.text(), u"b\r\nd\r\n"_s);
    EXPECT_EQ(doc.lines(), rows(u"a|b|c|d"));

    clipboard.setText(u"alt"_s);
    EXPECT_EQ(cutSelectedLines(doc, clipboard), u"ausschneiden..."_s);
    EXPECT_EQ(clipboard.text(), u"b\r\nd\r\n"_s);
    EXPECT_EQ(doc.lines(), rows(u"a||c|"));

    // What was cut comes back as the same lines.
    EXPECT_EQ(pasteLines(doc, clipboard), u"Zwischenablage eingefügt"_s);
    EXPECT_EQ(doc.lines(), rows(u"a||c||b|d"));
}

TEST(LineEditingTest, PasteAppendsTheClipboardLinesWhateverIsMarked) {
    const struct {
        QString clipboard;
        QStringList added;
    } cases[] = {
        {u"a\r\nb\r\n"_s, {u"a"_s, u"b"_s}}, {u"a\nb\n"_s, {u"a\nb\n"_s}}, {u"a\rb"_s, {u"a"_s, u"b"_s}}, {{}, {}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.clipboard.toStdString());
        ConfigDocument doc;
        FakeClipboard clipboard;
        clipboard.setText(c.clipboard);
        setUp(doc, rows(u"x|y"), 0, {0});
        pasteLines(doc, clipboard);
        EXPECT_EQ(doc.lines(), rows(u"x|y") + c.added);
    }
}

TEST(ConfigDocumentTest, MarkAndSelectionFollowTheirLines) {
    ConfigDocument doc;
    setUp(doc, rows(u"a|b|c"), 1, {1});
    doc.insertLine(1, u"n"_s); // at the marked index: the marked line moves down
    EXPECT_EQ(doc.marked(), 2);
    EXPECT_EQ(doc.selectedRows(), QList<int>{2});
    doc.insertLine(3, u"after"_s);
    EXPECT_EQ(doc.marked(), 2);
    doc.removeLine(0);
    EXPECT_EQ(doc.marked(), 1);
    EXPECT_EQ(doc.selectedRows(), QList<int>{1});
    EXPECT_EQ(doc.line(1), u"b"_s);
    doc.removeLine(1);
    EXPECT_EQ(doc.marked(), -1);
    EXPECT_FALSE(doc.hasSelection());
}

// A mapkey line of the given length with ";" at the given 1-based positions.
QString mapkeyLine(int length, std::initializer_list<int> semicolons) {
    QString line = u"mapkey k "_s + QString(length - 9, u'a');
    for (int pos : semicolons)
        line[pos - 1] = u';';
    return line;
}

TEST(MapkeySplitterTest, SplitsAfterTheLastSemicolonUpToPosition79) {
    const QString at79 = mapkeyLine(80, {40, 79});
    const QString at40 = mapkeyLine(85, {40, 80});
    const QString head79 = at79.left(79) + u'\\';
    const QString tail79 = u"mapkey(continued) "_s + at79.mid(79);
    const struct {
        const char* what;
        QString entry;
        int marked;
        QStringList placed; // in document order, where the entry line stood or at the end
        QString head;
    } cases[] = {
        {"79 characters stay", mapkeyLine(79, {40}), 1, {}, {}},
        {"replaced in place", at79, 1, {head79, tail79}, head79},
        {"position 80 is not scanned",
         at40,
         1,
         {at40.left(40) + u'\\', u"mapkey(continued) "_s + at40.mid(40)},
         at40.left(40) + u'\\'},
        {"no mark: tail first, then head", at79, -1, {tail79, head79}, head79},
        {"no semicolon: two empty lines", mapkeyLine(90, {85}), -1, {QString(), QString()}, QString()},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ConfigDocument doc;
        const QStringList lines{u"before"_s, c.entry, u"after"_s};
        setUp(doc, lines, c.marked, c.marked < 0 ? QList<int>{} : QList<int>{c.marked});
        const MapkeySplitResult result = splitMapkeyLine(doc, c.entry);
        EXPECT_FALSE(result.refused);
        EXPECT_EQ(result.placed, !c.placed.isEmpty());
        const QStringList expected = c.placed.isEmpty() ? lines
                                     : c.marked < 0     ? lines + c.placed
                                                        : QStringList{u"before"_s} + c.placed + QStringList{u"after"_s};
        EXPECT_EQ(doc.lines(), expected);
        EXPECT_EQ(result.entryLine, c.head);
        EXPECT_EQ(result.status, c.placed.isEmpty() ? QString() : u"check your mapkey !"_s);
    }
}

TEST(MapkeySplitterTest, RefusesAnythingButMapkeys) {
    for (const QString& entry : {u"MAPKEY k "_s + QString(90, u';'), u"! "_s + QString(90, u';')}) {
        ConfigDocument doc;
        setUp(doc, {entry}, 0, {0});
        const MapkeySplitResult result = splitMapkeyLine(doc, entry);
        EXPECT_TRUE(result.refused);
        EXPECT_EQ(result.message, u"this function is for mapkeys only !"_s);
        EXPECT_EQ(doc.lines(), QStringList{entry});
    }
}

TEST(EntryLineCheckTest, WarnsAbove98CharactersAndPreviewsMatches) {
    const QStringList picker = rows(u"display shade|display_layer_color yes|datum_display no");
    const struct {
        QString entry;
        const char16_t* document;
        bool warns;
        QString preview; // empty: the preview keeps its text
        int color;
        int iconLeft;
    } cases[] = {
        {QString(98, u'x'), u"", false, {}, 0, 320},
        {QString(99, u'x'), u"", true, {}, 0, 320},
        {u"disp"_s, u"datum on", false, u"display_layer_color yes"_s, 49152, 320},
        {u"disp"_s, u"display wire|display hidden|x", false, u"display hidden"_s, 255, 320},
        {u"Disp"_s, u"display wire", false, {}, 0, 320},
        {u"browser_favorite Normen"_s, u"", false, {}, 0, 480},
        {u"BROWSER_FAVORITE"_s, u"", false, {}, 0, 480},
        {u"Browser_favorite"_s, u"", false, {}, 0, 320},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry.toStdString());
        ConfigDocument doc;
        doc.replaceAll(rows(c.document));
        const EntryLineCheck check = checkEntryLine(c.entry, picker, doc);
        EXPECT_EQ(check.tooLong, c.warns);
        EXPECT_EQ(check.entryWidthTwips, c.warns ? 8500 : 6375);
        EXPECT_EQ(check.warning, c.warns ? u"mehr als 98 Zeichen in Zeile ! (Umbruch mit \\ trennen)"_s : QString());
        ASSERT_EQ(check.preview.has_value(), !c.preview.isEmpty());
        if (check.preview) {
            EXPECT_EQ(check.preview->text, c.preview);
            EXPECT_EQ(check.preview->color, c.color);
        }
        EXPECT_EQ(check.favoriteIconLeft, c.iconLeft);
    }
}

} // namespace
} // namespace quenfor
