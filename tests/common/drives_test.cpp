#include "common/drives.h"
#include "common/fileexists.h"

#include "qstringprinting.h"

#include <gtest/gtest.h>

using namespace quenfor;

namespace {

TEST(LogicalDrives, ListsExistingRoots) {
    const QStringList roots = logicalDrives();
    ASSERT_FALSE(roots.isEmpty());
    for (const QString& root : roots)
        EXPECT_TRUE(folderExists(root)) << root.toStdString();
}

} // namespace
