#pragma once

#include <QString>

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
void fillDriveBox(QComboBox* box);

// Dir1: a tree of folders only (no files, no extra columns) over the given model.
QTreeView* makeFolderTree(QWidget* parent, QFileSystemModel* model);

} // namespace quenfor
