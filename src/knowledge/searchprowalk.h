#pragma once

#include "knowledge/folderlister.h"

#include <QStringList>

#include <atomic>
#include <functional>

namespace quenfor {

struct SearchProWalkResult {
    QStringList folders;    // native full paths in walk order
    QStringList unreadable; // folders whose subfolders could not be read, in walk order
    QStringList hidden;     // hidden folders left out (with all below them), in walk order
    QString error;          // German, when the start folder is missing or unreadable
    bool cancelled = false; // the walk stopped early; folders holds what was found until then
};

// The search.pro generator's list: every folder below a start folder, breadth first, using the
// result list itself as the queue.
//
// - A folder's subfolders come in the order a Windows directory list shows them: compared by
//   their upper-case forms code unit by code unit (as NTFS orders names), names that differ only
//   in case by their exact spelling, so the order never depends on the locale or the file system.
// - Each entry in turn: when it is an existing folder it becomes the current folder; then the
//   current folder's subfolders are appended. An entry that is no longer a folder when its turn
//   comes leaves the current folder as it was, so that folder's subfolders are appended once more.
//   The program has always behaved so, and search.pro files made with it depend on it.
// - A linked folder (symbolic link, junction) is listed but never walked into, so a link back up
//   the tree cannot make the walk endless. An unreadable folder contributes nothing.
// - Hidden folders are left out with everything below them; they are named in `hidden`, so the
//   user learns what the list lacks.
class SearchProWalk {
public:
    // Gets the number of folders found so far, now and then during the walk and once at its end.
    using Progress = std::function<void(qsizetype found)>;

    explicit SearchProWalk(const FolderLister& lister = systemFolderLister());

    // Safe to call from a worker thread; cancel may be set from any thread and is checked
    // between every two folders.
    SearchProWalkResult run(const QString& startFolder, const Progress& progress = {},
                            const std::atomic_bool* cancel = nullptr) const;

private:
    const FolderLister& m_lister;
};

// Sorts subfolders into the order described above.
void sortLikeDirectoryList(QList<SubFolder>& folders);

} // namespace quenfor
