#pragma once

#include "lint/lintfinding.h"
#include "lint/lintline.h"

#include <QString>

#include <vector>

namespace quenfor {

// search.pro: folders that do not exist. A relative path counts from `baseFolder` (the
// search.pro's own folder). A path with an environment variable ($NAME, %NAME%) is left alone:
// only the CAD system's environment knows what it stands for.
void checkMissingFolders(const std::vector<LintLine>& lines, const QString& baseFolder, QList<LintFinding>& findings);

} // namespace quenfor
