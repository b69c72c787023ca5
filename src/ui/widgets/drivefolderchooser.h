#pragma once

#include <QObject>
#include <QString>

class QComboBox;
class QFileSystemModel;
class QTreeView;
class QWidget;

namespace quenfor {

// The drive box (Drive1) and folder tree (Dir1) that several windows pair, with the behaviour they
// share: choosing a drive shows its root, a drive that cannot be read puts the box back on the
// drive of the folder shown, and the box always follows the folder chosen in the tree. The two
// widgets are made as children of `parent`; each window places them in its own layout and gives
// its own German messages.
class DriveFolderChooser : public QObject {
    Q_OBJECT

public:
    explicit DriveFolderChooser(QWidget* parent);

    QComboBox* driveBox() const { return m_drives; }
    QTreeView* folderTree() const { return m_tree; }
    QFileSystemModel* model() const { return m_model; }
    // The folder shown, in native form; empty before the first one.
    const QString& folder() const { return m_folder; }

    // Shows `folder` in the tree and announces it (also when it was the current one already); false
    // when there is no such folder, and nothing changes.
    bool setCurrentFolder(const QString& folder);
    void setEnabled(bool enabled);

signals:
    void folderChosen(const QString& folder);
    // The drive chosen cannot be read; the box is on the shown folder's drive again.
    void driveUnavailable(const QString& root);

private:
    void announceCurrentFolder();
    void chooseDrive(int index);

    QFileSystemModel* m_model;
    QComboBox* m_drives;
    QTreeView* m_tree;
    QString m_folder;
};

} // namespace quenfor
