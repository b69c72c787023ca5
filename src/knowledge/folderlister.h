#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

// One subfolder as a folder listing finds it.
struct SubFolder {
    QString name;
    // A symbolic link (or a junction) to a folder. It is a folder the CAD system can search, but
    // walking into it could lead back up the tree, so a walk lists it and does not descend.
    bool linked = false;

    bool operator==(const SubFolder&) const = default;
};

struct FolderListing {
    bool isFolder = false;       // the path is an existing folder (links followed)
    bool readable = false;       // its entries could be read
    QList<SubFolder> subfolders; // visible subfolders in no particular order
    QStringList hidden;          // names of the hidden subfolders left out, so the walk can name them
};

// Reads folders for the search.pro walk. Hidden folders (a leading "." on Unix, the hidden
// attribute on Windows) are left out, as in the program's folder lists. Implementations hold no
// state, so one instance may serve walks in several threads.
class FolderLister {
public:
    virtual ~FolderLister() = default;

    // Whether path is a folder and, when it is, its subfolders. An unreadable folder is a folder
    // without subfolders.
    virtual FolderListing list(const QString& path) const = 0;
    // Only the folder test, for folders the walk does not enter.
    virtual bool isFolder(const QString& path) const = 0;
};

// Portable listing through QDirIterator.
class QtFolderLister : public FolderLister {
public:
    FolderListing list(const QString& path) const override;
    bool isFolder(const QString& path) const override;
};

// The fastest listing of this platform (directory entries read directly on Unix).
const FolderLister& systemFolderLister();

} // namespace quenfor
