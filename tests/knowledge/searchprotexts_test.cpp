#include "../common/qstringprinting.h"
#include "document/configdocument.h"
#include "knowledge/searchprotexts.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

TEST(SearchProTexts, FileNameInTheCurrentFolder) {
    const QString sep = QDir::separator();
    const struct {
        QString folder;
        QString name;
    } cases[] = {
        {sep, sep + u"search.pro"_s}, // a root keeps its one separator
        {u"D:\\"_s, u"D:\\search.pro"_s},
        {sep + u"work"_s, sep + u"work"_s + sep + u"search.pro"_s},
        {sep + u"work"_s + sep, sep + u"work"_s + sep + u"search.pro"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(searchProFileName(c.folder), c.name) << c.folder.toStdString();
}

TEST(SearchProTexts, TransferNamesOnlyAWholeListIntoAnUnnamedDocument) {
    const QStringList lines{u"/w/A"_s, u"/w/B"_s};
    const struct {
        const char* name;
        QString fileName;
        bool all;
        QString expectedName;
    } cases[] = {
        {"all, unnamed", {}, true, u"search.pro"_s},
        {"all, named", u"/w/config.pro"_s, true, u"/w/config.pro"_s},
        {"selection, unnamed", {}, false, {}},
    };
    for (const auto& c : cases) {
        ConfigDocument doc;
        doc.appendLine(u"first"_s);
        doc.setFileName(c.fileName);
        appendSearchProLines(doc, lines, c.all);
        EXPECT_EQ(doc.lines(), (QStringList{u"first"_s, u"/w/A"_s, u"/w/B"_s})) << c.name;
        EXPECT_EQ(doc.fileName(), c.expectedName) << c.name;
    }
    ConfigDocument closing;
    nameUnnamedSearchProDocument(closing);
    EXPECT_EQ(closing.fileName(), u"search.pro"_s);
}

TEST(SearchProTexts, UnreadableNote) {
    EXPECT_EQ(searchProUnreadableText({}), QString());
    EXPECT_EQ(searchProUnreadableText({u"/w/a"_s}),
              u"Das Verzeichnis \"/w/a\" konnte nicht gelesen werden; seine Unterverzeichnisse fehlen in der Liste."_s);
    EXPECT_EQ(searchProUnreadableText({u"/a"_s, u"/b"_s}),
              u"2 Verzeichnisse konnten nicht gelesen werden; ihre Unterverzeichnisse fehlen in der Liste: /a; /b"_s);
    EXPECT_EQ(
        searchProUnreadableText({u"/a"_s, u"/b"_s, u"/c"_s, u"/d"_s}),
        u"4 Verzeichnisse konnten nicht gelesen werden; ihre Unterverzeichnisse fehlen in der Liste: /a; /b; /c …"_s);
}
