#include "../common/qstringprinting.h"
#include "knowledge/picker.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

TEST(Picker, BuiltInEntries) {
    const QStringList dtl = builtInPickerEntries(u"List2dtl"_s);
    ASSERT_FALSE(dtl.isEmpty());
    EXPECT_TRUE(std::is_sorted(dtl.begin(), dtl.end()));
    EXPECT_EQ(builtInPickerEntries(u"List2pcf"_s), QStringList{u"plotter_command Windows_Print_Manager Drucker..."_s});
    EXPECT_TRUE(builtInPickerEntries(u"List2cfg"_s).isEmpty());
}

TEST(Picker, TakeOverFollowsTheFileNameAndListOrder) {
    const QStringList entries = {u"a 1"_s, u""_s, u"c 3"_s};
    EXPECT_EQ(takeOverSelection(u"C:\\x\\config.pro"_s, u"List2cfg"_s, entries, {2, 0, 1}),
              QStringList({u"a 1"_s, u""_s, u"c 3"_s}));
    EXPECT_EQ(takeOverSelection(u"CONFIG.SUP"_s, u"List2cfg"_s, entries, {2}), QStringList({u"c 3"_s}));
    EXPECT_TRUE(takeOverSelection(u"CONFIG.Pro"_s, u"List2cfg"_s, entries, {0}).isEmpty());
    EXPECT_TRUE(takeOverSelection(u"din.dtl"_s, u"List2cfg"_s, entries, {0}).isEmpty());
    EXPECT_EQ(takeOverSelection(u"din.DTL"_s, u"List2dtl"_s, entries, {0}), QStringList({u"a 1"_s}));
}
