#pragma once

#include <QString>

class QAbstractItemView;
class QComboBox;
class QFileSystemModel;
class QLabel;
class QTreeView;
class QWidget;

namespace quenfor {

// The pieces every window that works on a folder shares, made alike in one place.

// A framed status line of two text lines, for hints and results.
QLabel* makeStatusLine(QWidget* parent, const QString& objectName);

// Drive1: the drive roots (mounted volumes elsewhere), in native form.
QComboBox* makeDriveBox(QWidget* parent);

// Dir1: a tree of folders only (no files, no extra columns) over the given model.
QTreeView* makeFolderTree(QWidget* parent, QFileSystemModel* model);

// Makes `folder` the tree's current folder and brings it into view; false when the model has no
// such folder (the window then says so in its own words).
bool showFolderInTree(QTreeView* tree, QFileSystemModel* model, const QString& folder);

// The model fills the rows around the current folder later, from its own thread, and sorts them
// later still, which pushes the folder out of view. This scrolls it back after every folder
// showFolderInTree shows, until the user scrolls, clicks or types in the tree.
void keepCurrentFolderInView(QTreeView* tree, QFileSystemModel* model);

// A model that hides folders drops a drive root ("/") for a moment when it learns that the root is
// a folder, and a view showing the root's entries then shows the drive list instead. This puts the
// model's root back into the view after each change of the model.
void keepViewOnModelRoot(QAbstractItemView* view, QFileSystemModel* model);

} // namespace quenfor
