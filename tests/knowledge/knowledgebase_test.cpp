// The knowledge base is read by a fixed rule with two old quirks that shipped files rely on.
#include "../common/qstringprinting.h"
#include "knowledge/knowledgebase.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

QString writeKnowledgeBase(const QTemporaryDir& dir, const QByteArray& bytes) {
    const QString path = dir.filePath(u"config_opts.txt"_s);
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(bytes);
    return path;
}

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Lines "L1".."Ln" with the given lines replaced by option lines "opt<line>".
QByteArray numberedFile(int count, std::initializer_list<int> optionLines) {
    QByteArray bytes;
    for (int i = 1; i <= count; ++i) {
        const bool option = std::find(optionLines.begin(), optionLines.end(), i) != optionLines.end();
        bytes += (option ? "opt" : "L") + QByteArray::number(i) + "\r\n";
    }
    return bytes;
}

} // namespace

TEST(OptionName, CollapsesBlanksAndCutsAtTheFirst) {
    EXPECT_EQ(optionNameOf(u"display  shade"), u"display"_s);
    EXPECT_EQ(optionNameOf(u"nodots"), u"nodots"_s);
    EXPECT_EQ(optionNameOf(u"   "), u""_s); // blanks only: every line matches
    EXPECT_EQ(optionNameOf(u"a    b c"), u"a"_s);
}

TEST(KnowledgeLookup, ReadingRuleWithItsQuirks) {
    struct Case {
        const char* what;
        QByteArray file;
        QList<QStringList> blocks;
    };
    const QList<Case> cases = {
        {"a block is the line and the five after it",
         numberedFile(9, {2}),
         {{u"opt2"_s, u"L3"_s, u"L4"_s, u"L5"_s, u"L6"_s, u"L7"_s}}},
        {"the last line repeats when the file ends inside a block",
         numberedFile(4, {2}),
         {{u"opt2"_s, u"L3"_s, u"L4"_s, u"L4"_s, u"L4"_s, u"L4"_s}}},
        {"a match on the last line shows it six times",
         numberedFile(3, {3}),
         {{u"opt3"_s, u"opt3"_s, u"opt3"_s, u"opt3"_s, u"opt3"_s, u"opt3"_s}}},
        {"a match right after a block is passed over",
         numberedFile(12, {1, 7}),
         {{u"opt1"_s, u"L2"_s, u"L3"_s, u"L4"_s, u"L5"_s, u"L6"_s}}},
        {"a match one line later starts its own block",
         numberedFile(14, {1, 8}),
         {{u"opt1"_s, u"L2"_s, u"L3"_s, u"L4"_s, u"L5"_s, u"L6"_s},
          {u"opt8"_s, u"L9"_s, u"L10"_s, u"L11"_s, u"L12"_s, u"L13"_s}}},
        {"a match inside a block is only part of it",
         numberedFile(9, {1, 3}),
         {{u"opt1"_s, u"L2"_s, u"opt3"_s, u"L4"_s, u"L5"_s, u"L6"_s}}},
        {"lone CR and CR LF both end lines",
         "optA\rx\r\ny\rz\r\nw\rv\r\n",
         {{u"optA"_s, u"x"_s, u"y"_s, u"z"_s, u"w"_s, u"v"_s}}},
    };
    QTemporaryDir dir;
    for (const Case& c : cases) {
        const KnowledgeLookup lookup = lookupKnowledgeBase(writeKnowledgeBase(dir, c.file), u"opt");
        EXPECT_TRUE(lookup.fileFound) << c.what;
        EXPECT_EQ(lookup.blocks, c.blocks) << c.what;
    }
}

TEST(KnowledgeLookup, PrefixCaseAndEncoding) {
    QTemporaryDir dir;
    const QString path = writeKnowledgeBase(
        dir,
        "plotter  yes\r\n  Plotter.\r\n\r\n\r\n\r\n\r\n\r\nplotter_command  x\r\n  Befehl f\xC3\xBCr den Druck.\r\n"
        "\r\n\r\n\r\n\r\n\r\nPLOTTER  gross\r\n");
    const KnowledgeLookup plotter = lookupKnowledgeBase(path, u"plotter");
    ASSERT_EQ(plotter.blocks.size(), 2); // "plotter" also finds "plotter_command", not "PLOTTER"
    EXPECT_EQ(plotter.blocks[1][1], u"  Befehl für den Druck."_s);
    EXPECT_FALSE(lookupKnowledgeBase(dir.filePath(u"fehlt.txt"_s), u"x").fileFound);
}

TEST(KnowledgeFeeding, RecordIsFoundByTheNextLookupAndKeepsTheEncoding) {
    QTemporaryDir dir;
    const QByteArray shipped = "trail_dir  Pfad\r\n  Ordner f\xFCr Trail-Dateien.\r\n\r\n\r\n\r\n\r\nx  y\r\n";
    const QString path = writeKnowledgeBase(dir, shipped);
    const AppendResult added = appendKnowledgeRecord(
        path, u"trail_dir C:\\temp"_s, u"Unser Trail-Ordner.\nNicht ändern."_s, {u"windows-1252"_s, false});
    ASSERT_TRUE(added.ok) << added.error.toStdString();
    EXPECT_EQ(readAll(path), shipped + "trail_dir C:\\temp\rUnser Trail-Ordner.\r\nNicht \xE4ndern.\r***\r\n");
    const KnowledgeLookup lookup = lookupKnowledgeBase(path, u"trail_dir");
    ASSERT_EQ(lookup.blocks.size(), 2);
    EXPECT_EQ(lookup.blocks[1].mid(0, 4),
              QStringList({u"trail_dir C:\\temp"_s, u"Unser Trail-Ordner."_s, u"Nicht ändern."_s, u"***"_s}));

    // A missing file is created; a folder in the way is reported and nothing is written.
    EXPECT_TRUE(appendKnowledgeRecord(dir.filePath(u"neu.txt"_s), u"a"_s, u"b"_s).ok);
    QDir(dir.path()).mkdir(u"ordner.txt"_s);
    EXPECT_FALSE(appendKnowledgeRecord(dir.filePath(u"ordner.txt"_s), u"a"_s, u"b"_s).ok);
}
