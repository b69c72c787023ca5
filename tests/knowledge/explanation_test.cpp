#include "../common/qstringprinting.h"
#include "knowledge/explanation.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;
using Kind = Explanation::Kind;

TEST(Explanation, KindsInTheirOrder) {
    const struct {
        const char16_t* line;
        Kind kind;
    } cases[] = {
        {u"mapkey a @MAPKEY_LABELx;", Kind::MapkeyHead},
        {u"mapkey(continued) ~ Command;", Kind::MapkeyContinuation},
        {u"mapkeyx", Kind::MapkeyHead},
        {u"", Kind::Blank},
        {u"  ", Kind::Option}, // blanks are not an empty line
        {u"browser_favoritexyz", Kind::Favorite},
        {u"BROWSER_FAVORITE a b", Kind::Option},
        {u"! Kommentar", Kind::Comment},
        {u" ! eingerückt", Kind::Option},
    };
    for (const auto& c : cases)
        EXPECT_EQ(explanationKindOf(c.line), c.kind) << QString::fromUtf16(c.line).toStdString();
    EXPECT_TRUE(fixedExplanation(Kind::Blank).startsWith(u"Leerzeile."_s));
}

TEST(Explanation, OptionLinesShowTheirBlocksUnderTheHeading) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"config_opts.txt"_s);
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write("display  shade\r\n  a\r\n  b\r\n  c\r\n  d\r\n  e\r\n");
    f.close();
    const Explanation e = explainEntryLine(u"display   wireframe"_s, path);
    // The config knowledge base adds what is known of the option below its blocks.
    EXPECT_EQ(e.text, u"*** Erklärung zur Option: ***\ndisplay  shade\n  a\n  b\n  c\n  d\n  e\n ...\nVorgabe: shade\n"
                      "Erlaubte Werte: wireframe, hiddenvis, hiddeninvis, shade, shadewithreflect, shadewithedges"_s);
    EXPECT_EQ(explainEntryLine(u"nothing"_s, path).text, u"*** Erklärung zur Option: ***"_s);
    EXPECT_TRUE(explainEntryLine(u"display"_s, dir.filePath(u"fehlt.txt"_s)).knowledgeBaseMissing);
    // Fixed texts need no file at all.
    EXPECT_FALSE(explainEntryLine(u"! x"_s, dir.filePath(u"fehlt.txt"_s)).knowledgeBaseMissing);
}
