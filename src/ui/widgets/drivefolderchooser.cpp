#include "ui/widgets/drivefolderchooser.h"

#include "common/fileexists.h"
#include "ui/widgets/folderwidgets.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QPersistentModelIndex>
#include <QTreeView>

namespace quenfor {

DriveFolderChooser::DriveFolderChooser(QWidget* parent)
    : QObject(parent), m_model(new QFileSystemModel(this)), m_drives(makeDriveBox(parent)),
      m_tree(makeFolderTree(parent, m_model)) {
    connect(m_drives, &QComboBox::activated, this, &DriveFolderChooser::chooseDrive);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DriveFolderChooser::announceCurrentFolder);
    keepCurrentFolderInView(m_tree, m_model);
}

bool DriveFolderChooser::setCurrentFolder(const QString& folder) {
    const QPersistentModelIndex before = m_tree->currentIndex();
    if (!folderExists(folder) || !showFolderInTree(m_tree, m_model, folder))
        return false;
    // Setting the same index again announces nothing; the window must still show this folder.
    if (m_tree->currentIndex() == before)
        announceCurrentFolder();
    return true;
}

void DriveFolderChooser::setEnabled(bool enabled) {
    m_drives->setEnabled(enabled);
    m_tree->setEnabled(enabled);
}

void DriveFolderChooser::announceCurrentFolder() {
    const QModelIndex index = m_tree->currentIndex();
    if (!index.isValid())
        return;
    m_folder = QDir::toNativeSeparators(m_model->filePath(index));
    selectDriveOf(m_drives, m_folder);
    emit folderChosen(m_folder);
}

void DriveFolderChooser::chooseDrive(int index) {
    const QString root = m_drives->itemText(index);
    if (setCurrentFolder(root))
        return;
    // A drive without a medium, or one that went away since the list was filled. The window says
    // so first; then the box shows the drive of the folder that is still shown.
    emit driveUnavailable(root);
    selectDriveOf(m_drives, m_folder);
}

} // namespace quenfor
