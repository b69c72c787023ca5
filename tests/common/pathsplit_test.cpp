#include "common/pathsplit.h"

#include "qstringprinting.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

struct SplitCase {
    QString path;
    QString drive;
    QString folder;
    QString name;
    QString extension;
};

TEST(SplitPath, GivesDriveFolderNameAndFirstExtension) {
    const SplitCase cases[] = {
        {u"bracket.prt.3"_s, {}, {}, u"bracket"_s, u".prt"_s},
        {u"C:\\w\\a.b.prt.3"_s, u"C:"_s, u"\\w\\"_s, u"a"_s, u".b"_s},
        {u"D:bracket.asm"_s, u"D:"_s, {}, u"bracket"_s, u".asm"_s},
        {u"/home/cad/part.prt"_s, {}, u"/home/cad/"_s, u"part"_s, u".prt"_s},
        {u"C:/mixed\\sep/x.drw.12"_s, u"C:"_s, u"/mixed\\sep/"_s, u"x"_s, u".drw"_s},
        // Dots in folders do not count: the walk stops at the last separator.
        {u"/data/v1.2/readme"_s, {}, u"/data/v1.2/"_s, u"readme"_s, {}},
        {u"C:\\v1.2\\"_s, u"C:"_s, u"\\v1.2\\"_s, {}, {}},
        // A dot with nothing behind it is no extension.
        {u"name."_s, {}, {}, u"name."_s, {}},
        {u"a..b"_s, {}, {}, u"a."_s, u".b"_s},
        {u"bracket.prt."_s, {}, {}, u"bracket"_s, u".prt."_s},
        {u".profile"_s, {}, {}, {}, u".profile"_s},
        {u"C:"_s, u"C:"_s, {}, {}, {}},
        {{}, {}, {}, {}, {}},
    };
    for (const SplitCase& c : cases) {
        SCOPED_TRACE(c.path.toStdString());
        const PathParts parts = splitPath(c.path);
        EXPECT_EQ(parts.drive, c.drive);
        EXPECT_EQ(parts.folder, c.folder);
        EXPECT_EQ(parts.name, c.name);
        EXPECT_EQ(parts.extension, c.extension);
    }
}

TEST(JoinFolderAndName, AddsOneSeparatorOnlyWhereNoneIs) {
    const QString sep = QDir::separator();
    EXPECT_EQ(joinFolderAndName(u"/home/cad", u"config.pro"), u"/home/cad"_s + sep + u"config.pro"_s);
    EXPECT_EQ(joinFolderAndName(u"/", u"config.pro"), u"/config.pro"_s);
    EXPECT_EQ(joinFolderAndName(u"C:\\", u"config.pro"), u"C:\\config.pro"_s);
    EXPECT_EQ(joinFolderAndName(u"/tmp/", u"quen.tmp"), u"/tmp/quen.tmp"_s);
    EXPECT_EQ(joinFolderAndName(u"", u"quen.tmp"), u"quen.tmp"_s);
}

} // namespace
