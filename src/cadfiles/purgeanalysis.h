#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

// The object key of a file name: name before the first dot, a dot, and the first extension with
// its own dot ("bracket..prt" for "bracket.prt.12"). Files of one object share it.
QString purgeKey(const QString& fileName);

// Sorts file names as the folder's file list shows them: by their upper-case forms code unit by
// code unit, names that differ only in case by their exact spelling. The result never depends on
// the locale, so a purge lists the same files on every machine.
void sortLikeFileList(QStringList& names);

// The files of folder that the purge deletes, as full paths: every file for which a file of the
// same name and first extension with a higher version number exists beside it. sortedNames are
// the folder's file names in file list order. Versions compare as numbers (".10" is above ".9"), a
// file without a version counts as 0, a version that is no number takes part in no comparison.
// The folder may end in a separator or be a root: the highest version of each object is never
// listed. Runs in n log n: the files are grouped by object, not compared pairwise.
QStringList purgeCandidates(const QString& folder, const QStringList& sortedNames);

// Lists the folder's visible files and runs the analysis on them.
QStringList analyseFolder(const QString& folder);

} // namespace quenfor
