#pragma once

#include <QString>
#include <QStringList>

namespace quenfor {

// What the purge and the clean see of one folder.
struct DirectoryEntries {
    bool exists = false;   // the path is a folder (a link to a folder counts for the start folder)
    bool readable = false; // its entries could be read
    QStringList files;     // visible regular files, names only, in file system order
    QStringList folders;   // visible real subfolders, names only, in file system order
};

// Lists a folder as the file and folder lists of the purge window show it. Hidden entries (a
// leading "." on Unix, the hidden attribute on Windows) are left out. Symbolic links (and
// junctions) are left out altogether: a linked file is not the folder's own file, and a linked
// folder could lead out of the tree or back up into it, so nothing behind a link is ever touched.
// One implementation per platform; no state, safe from any thread.
DirectoryEntries listDirectory(const QString& folder);

} // namespace quenfor
