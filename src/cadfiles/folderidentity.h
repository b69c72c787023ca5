#pragma once

#include <QString>

namespace quenfor {

// A key that is the same for every path leading to one folder (through links too) and differs
// between folders; empty when the folder's status cannot be read. It costs one status call
// whatever the depth, where resolving the canonical path costs a call per path component, which
// made a search down a deep folder chain take time growing with the cube of its depth.
QString folderIdentity(const QString& path);

} // namespace quenfor
