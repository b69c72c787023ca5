#pragma once

#include <QObject>
#include <QString>

class QAbstractItemView;
class QComboBox;
class QFileSystemModel;
class QListView;
class QTreeView;
class QWidget;

namespace quenfor {

// The drive box (Drive1) and folder view (Dir1) that the windows pair, with the behaviour they
// share: choosing a drive shows its root, a drive that cannot be read puts the box back on the
// drive of the window's folder, and the box always follows the folder chosen in the view. The two
// widgets are made as children of `parent`; each window places them in its own layout, renames
// them where it needs other names and gives its own German messages.
class DriveFolderChooser : public QObject {
    Q_OBJECT

public:
    // How the folders are shown; the windows grew up with different browsers and keep them.
    enum class View {
        // One tree of every drive's folders.
        AllDrives,
        // A tree of the chosen drive's folders only: the drive box is the tree's top level, and the
        // drive's root is chosen by choosing the drive.
        OneDrive,
        // A flat list of the folder's subfolders; activating one enters it.
        FolderList,
    };

    explicit DriveFolderChooser(QWidget* parent, View view = View::AllDrives);

    QComboBox* driveBox() const { return m_drives; }
    QAbstractItemView* folderView() const { return m_view; }
    // The view as a tree or as a list; null when it is the other kind.
    QTreeView* folderTree() const;
    QListView* folderList() const;
    QFileSystemModel* model() const { return m_model; }
    // The window's folder, in native form; empty before the first one.
    const QString& folder() const { return m_folder; }

    // Shows `folder` and announces it (also when it was the current one already); false when there
    // is no such folder or its names cannot be read, and nothing changes.
    bool setCurrentFolder(const QString& folder);
    // For a folder the window keeps even when it does not exist (yet), such as the target of files
    // still to be written: folder() becomes it and the drive box shows its drive, so an unreadable
    // drive leads back there; the view shows it, and announces it, only when it exists.
    void keepFolder(const QString& folder);
    void setEnabled(bool enabled);

signals:
    void folderChosen(const QString& folder);
    // The drive chosen cannot be read; the box is on the window folder's drive again.
    void driveUnavailable(const QString& root);

private:
    void announceCurrentFolder();
    void announce(const QString& folder);
    void chooseDrive(int index);
    void selectDriveOf(const QString& folder);
    void showDriveInTree();

    View m_kind;
    QFileSystemModel* m_model;
    QComboBox* m_drives;
    QAbstractItemView* m_view;
    QString m_folder;
};

} // namespace quenfor
