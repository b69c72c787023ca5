// The replace run changes every line of a company config.pro at once: a wrong cut or a second
// replacement in a line would silently damage hundreds of paths.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "document/configdocument.h"
#include "knowledge/replacelines.h"
#include "settings/settingsstore.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(ReplaceFirstInLine, ReplacesTheFirstMatchOfAnyCaseAsTyped) {
    const struct {
        QString line;
        QString find;
        QString replacement;
        QString expected;
        bool held;
    } cases[] = {
        {u"pro_format_dir C:\\3d\\Format"_s, u"c:\\3d"_s, u"D:\\cad"_s, u"pro_format_dir D:\\cad\\Format"_s, true},
        {u"a x a"_s, u"a"_s, u"b"_s, u"b x a"_s, true},
        {u"search_path C:\\alt"_s, u"ALT"_s, u"neu"_s, u"search_path C:\\neu"_s, true}, // at the very end
        {u"ALT"_s, u"alt"_s, u"Neu"_s, u"Neu"_s, true},                                 // the whole line
        {u"AbAb"_s, u"ab"_s, u"ab"_s, u"abAb"_s, true}, // the replacement as typed, not in the found case
        {u"Größe GRÖSSE"_s, u"größe"_s, u"x"_s, u"x GRÖSSE"_s, true},
        {u"abc"_s, u"zz"_s, u"q"_s, u"abc"_s, false},
        {u"abc"_s, u"abcd"_s, u"q"_s, u"abc"_s, false},
        {u"abc"_s, u"b"_s, QString(), u"ac"_s, true},
        {QString(), u"a"_s, u"b"_s, QString(), false},
        // An empty find text stands at the start of every line that is not empty.
        {u"display shade"_s, QString(), u"! "_s, u"! display shade"_s, true},
        {u" "_s, QString(), u"! "_s, u"!  "_s, true},
        {QString(), QString(), u"! "_s, QString(), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE((c.line + u" / "_s + c.find).toStdString());
        EXPECT_EQ(replaceFirstInLine(c.line, c.find, c.replacement), c.expected);
        EXPECT_EQ(lineHoldsFindText(c.line, c.find), c.held);
    }
}

class ReplaceInDocument : public ::testing::Test {
protected:
    ConfigDocument doc;

    void load(const QStringList& lines) { doc.replaceAll(lines); }
};

TEST_F(ReplaceInDocument, CountsTheLinesThatHeldTheText) {
    const struct {
        const char* label;
        QStringList lines;
        QString find;
        QString replacement;
        QStringList expected;
        int count;
    } cases[] = {
        {"paths",
         {u"pro_format_dir C:\\3d\\Format"_s, u"display shade"_s, u"start_model_dir c:\\3D\\start c:\\3d"_s},
         u"c:\\3d"_s,
         u"D:\\cad"_s,
         {u"pro_format_dir D:\\cad\\Format"_s, u"display shade"_s, u"start_model_dir D:\\cad\\start c:\\3d"_s},
         2},
        {"no_match", {u"a"_s, QString(), u"b"_s}, u"x"_s, u"y"_s, {u"a"_s, QString(), u"b"_s}, 0},
        {"empty_find_comments_out",
         {u"display shade"_s, QString(), u"mapkey a @x;"_s},
         QString(),
         u"! "_s,
         {u"! display shade"_s, QString(), u"! mapkey a @x;"_s},
         2},
        // A replacement equal to the found text still counts, as the line held it.
        {"same_text", {u"Tol 1"_s, u"tol 2"_s}, u"TOL"_s, u"tol"_s, {u"tol 1"_s, u"tol 2"_s}, 2},
        {"empty_document", {}, u"a"_s, u"b"_s, {}, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.label);
        load(c.lines);
        // Lines are changed in place; a copy held elsewhere (the window's undo) must keep the old text.
        const QStringList before = doc.lines();
        EXPECT_EQ(replaceInDocument(doc, c.find, c.replacement), c.count);
        EXPECT_EQ(doc.lines(), c.expected);
        EXPECT_EQ(before, c.lines);
    }
}

TEST_F(ReplaceInDocument, WritesOnlyChangedLinesAndKeepsMarkAndSelection) {
    load({u"a 1"_s, u"b 2"_s, u"a 3"_s, u"A 4"_s});
    doc.setMarked(1);
    doc.setSelected(2, true);
    QSignalSpy changed(&doc, &ConfigDocument::linesChanged);
    QSignalSpy reset(&doc, &ConfigDocument::resetDone);

    EXPECT_EQ(replaceInDocument(doc, u"a"_s, u"a"_s), 3); // the first line keeps its text
    EXPECT_EQ(replaceInDocument(doc, u"a "_s, u"x "_s), 3);

    EXPECT_EQ(doc.lines(), (QStringList{u"x 1"_s, u"b 2"_s, u"x 3"_s, u"x 4"_s}));
    // Only the "A 4" line changed in the first run; all three in the second.
    ASSERT_EQ(changed.count(), 4);
    EXPECT_EQ(changed.at(0).at(0).toInt(), 3);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(doc.marked(), 1);
    EXPECT_EQ(doc.selectedRows(), QList<int>{2});
}

class ReplaceTextsStore : public StoreSandbox {};

TEST_F(ReplaceTextsStore, DefaultsUntilStoredThenTheStoredTexts) {
    const ReplaceTexts defaults = loadReplaceTexts();
    EXPECT_EQ(defaults.find, u"Suchbegriff eingeben"_s);
    EXPECT_EQ(defaults.replacement, u"Ersatzbegriff eingeben"_s);

    ASSERT_TRUE(storeReplaceTexts({u"C:\\3d"_s, QString()}));
    const ReplaceTexts stored = loadReplaceTexts();
    EXPECT_EQ(stored.find, u"C:\\3d"_s);
    EXPECT_EQ(stored.replacement, QString()); // an empty text is kept, not replaced by the default
    // The keys the program has always used, where older installations left them.
    const SettingsStore store(u"quenfor"_s);
    EXPECT_EQ(store.value(u"Optionen"_s, u"txt_finde"_s, QString()), u"C:\\3d"_s);
    EXPECT_EQ(store.value(u"Optionen"_s, u"txt_replace"_s, u"x"_s), QString());
}

} // namespace
