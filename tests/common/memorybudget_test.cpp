// Work that cannot fit under the process's memory limit is refused before it starts.
#include "common/memorybudget.h"

#include <gtest/gtest.h>

namespace {

TEST(MemoryBudget, RefusesOnlyWhatExceedsTheLimit) {
    constexpr qint64 kMiB = 1024 * 1024;
    EXPECT_TRUE(quenfor::memoryShortfall(800 * kMiB, -1, 100 * kMiB).isEmpty());
    EXPECT_TRUE(quenfor::memoryShortfall(400 * kMiB, 600 * kMiB, 100 * kMiB).isEmpty());
    const QString refused = quenfor::memoryShortfall(728 * kMiB, 600 * kMiB, 100 * kMiB);
    EXPECT_TRUE(refused.startsWith(QStringLiteral("Der Arbeitsspeicher reicht dafür nicht aus: etwa 728 MB")))
        << refused.toStdString();
    EXPECT_TRUE(refused.contains(QStringLiteral("noch 500 MB"))) << refused.toStdString();
    EXPECT_TRUE(quenfor::memoryShortfall(1, 100 * kMiB, 200 * kMiB).contains(QStringLiteral("noch 0 MB")));
}

} // namespace
