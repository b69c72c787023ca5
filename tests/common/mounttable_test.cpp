#include "common/mounttable.h"
#include "common/wholefile.h"

#include "qstringprinting.h"

#include <QFile>

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

TEST(ParseMountTable, ReadsFieldsInOrderAndUndoesEscapes) {
    const QList<MountEntry> mounts = parseMountTable("/dev/sda1 / ext4 rw,relatime 0 0\n"
                                                     "\n"
                                                     "broken-line-without-fields\n"
                                                     "//srv/Team\\040Data /mnt/team\\040data cifs rw 0 0\n"
                                                     "a\\011b /mnt/back\\134slash\tnfs4  rw 0 0\r\n"
                                                     "odd\\04 /mnt/\\999 tmpfs rw 0 0");
    ASSERT_EQ(mounts.size(), 4);
    EXPECT_EQ(mounts[0].source, u"/dev/sda1"_s);
    EXPECT_EQ(mounts[0].mountPoint, u"/"_s);
    EXPECT_EQ(mounts[0].type, u"ext4"_s);
    EXPECT_EQ(mounts[1].source, u"//srv/Team Data"_s);
    EXPECT_EQ(mounts[1].mountPoint, u"/mnt/team data"_s);
    EXPECT_EQ(mounts[2].source, u"a\tb"_s);
    EXPECT_EQ(mounts[2].mountPoint, u"/mnt/back\\slash"_s);
    EXPECT_EQ(mounts[2].type, u"nfs4"_s);
    // Incomplete or non-octal escapes are kept as written.
    EXPECT_EQ(mounts[3].source, u"odd\\04"_s);
    EXPECT_EQ(mounts[3].mountPoint, u"/mnt/\\999"_s);
}

TEST(ParseMountTable, UnderstandsTheMachinesOwnTable) {
    if (!QFile::exists(u"/proc/self/mounts"_s))
        GTEST_SKIP() << "no /proc/self/mounts on this system";
    const QList<MountEntry> mounts = parseMountTable(readWholeFile(u"/proc/self/mounts"_s));
    const bool hasRoot =
        std::any_of(mounts.cbegin(), mounts.cend(), [](const MountEntry& m) { return m.mountPoint == u"/"_s; });
    EXPECT_TRUE(hasRoot);
}

} // namespace
