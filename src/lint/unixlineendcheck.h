#pragma once

#include "lint/lintfinding.h"

#include <QStringList>

namespace quenfor {

// Document lines that hold LF line ends: the editor shows such a file as one long line until
// "fragmentierten Unix Text reparieren" splits it. One finding per document line.
void checkUnixLineEnds(const QStringList& documentLines, QList<LintFinding>& findings);

} // namespace quenfor
