#include "common/drivecontaining.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

TEST(DriveContaining, LongestRootThatBeginsTheFolder) {
    const QStringList roots{u"/"_s, u"/home"_s, u"/home/user/cad"_s, u"C:\\"_s, u"/mnt/a"_s};
    const struct {
        QString folder;
        qsizetype drive;
    } cases[] = {
        {u"/home/user/cad/work"_s, 2},
        {u"/home/user"_s, 1},
        {u"/homework"_s, 0}, // "/home" is not a leading folder of "/homework"
        {u"/mnt/ab"_s, 0},
        {u"/mnt/a"_s, 4},
        {u"C:\\work\\parts"_s, 3},
#ifdef Q_OS_WIN
        {u"C:/work"_s, 3}, // either separator
#endif
        {u"D:\\work"_s, -1},
        {QString(), -1},
    };
    for (const auto& c : cases)
        EXPECT_EQ(driveContaining(roots, c.folder), c.drive) << c.folder.toStdString();
    EXPECT_EQ(driveContaining({}, u"/home"_s), -1);
}
