#include "common/textreplace.h"

#include "qstringprinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(ReplaceFirstIgnoringCase, ReplacesOnlyTheFirstMatchOfAnyCase) {
    struct Case {
        QString text;
        QString search;
        QString replacement;
        QString expected;
        bool replaced;
    };
    const Case cases[] = {
        {u"a PRO b pro"_s, u"pro"_s, u"X"_s, u"a X b pro"_s, true},
        {u"config.pro"_s, u"CONFIG"_s, u"search"_s, u"search.pro"_s, true},
        {u"end"_s, u"END"_s, QString(), QString(), true},
        {u"Öl öl"_s, u"öL"_s, u"x"_s, u"x öl"_s, true},
        {u"aaa"_s, u"aa"_s, u"b"_s, u"ba"_s, true},
        {u"abc"_s, u"abcd"_s, u"x"_s, u"abc"_s, false},
        {u"abc"_s, u"x"_s, u"y"_s, u"abc"_s, false},
        {u"abc"_s, QString(), u"y"_s, u"abc"_s, false},
        {QString(), u"a"_s, u"y"_s, QString(), false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.toStdString() + " / " + c.search.toStdString());
        QString text = c.text;
        EXPECT_EQ(replaceFirstIgnoringCase(text, c.search, c.replacement), c.replaced);
        EXPECT_EQ(text, c.expected);
    }
}

} // namespace
