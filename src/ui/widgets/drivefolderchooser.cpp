#include "ui/widgets/drivefolderchooser.h"

#include "common/drivecontaining.h"
#include "common/fileexists.h"
#include "ui/widgets/folderwidgets.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QListView>
#include <QPersistentModelIndex>
#include <QStorageInfo>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QAbstractItemView* makeChooserView(QWidget* parent, QFileSystemModel* model, DriveFolderChooser::View view) {
    if (view != DriveFolderChooser::View::FolderList)
        return makeFolderTree(parent, model);
    model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    auto* list = new QListView(parent);
    list->setObjectName(u"Dir1"_s);
    list->setModel(model);
    list->setUniformItemSizes(true);
    keepViewOnModelRoot(list, model);
    return list;
}

} // namespace

DriveFolderChooser::DriveFolderChooser(QWidget* parent, View view)
    : QObject(parent), m_kind(view), m_model(new QFileSystemModel(this)), m_drives(makeDriveBox(parent)),
      m_view(makeChooserView(parent, m_model, view)) {
    connect(m_drives, &QComboBox::activated, this, &DriveFolderChooser::chooseDrive);
    if (QTreeView* tree = folderTree()) {
        connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
                &DriveFolderChooser::announceCurrentFolder);
        keepCurrentFolderInView(tree, m_model);
    }
}

QTreeView* DriveFolderChooser::folderTree() const {
    return qobject_cast<QTreeView*>(m_view);
}

QListView* DriveFolderChooser::folderList() const {
    return qobject_cast<QListView*>(m_view);
}

bool DriveFolderChooser::setCurrentFolder(const QString& folder) {
    if (!folderCanBeListed(folder))
        return false;
    const QString path = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (m_kind == View::FolderList) {
        m_model->setRootPath(path);
        m_view->setRootIndex(m_model->index(path));
        announce(path);
        return true;
    }
    QTreeView* tree = folderTree();
    if (m_kind == View::OneDrive) {
        selectDriveOf(path);
        showDriveInTree();
        if (m_model->index(path) == tree->rootIndex()) {
            tree->setCurrentIndex(QModelIndex());
            announce(path);
            return true;
        }
    }
    const QPersistentModelIndex before = tree->currentIndex();
    if (!showFolderInTree(tree, m_model, path))
        return false;
    // Setting the same index again announces nothing; the window must still show this folder.
    if (tree->currentIndex() == before)
        announceCurrentFolder();
    return true;
}

void DriveFolderChooser::keepFolder(const QString& folder) {
    if (setCurrentFolder(folder))
        return;
    m_folder = QDir::toNativeSeparators(folder);
    selectDriveOf(m_folder);
}

void DriveFolderChooser::setEnabled(bool enabled) {
    m_drives->setEnabled(enabled);
    m_view->setEnabled(enabled);
}

void DriveFolderChooser::announceCurrentFolder() {
    const QModelIndex index = m_view->currentIndex();
    if (index.isValid())
        announce(m_model->filePath(index));
}

void DriveFolderChooser::announce(const QString& folder) {
    m_folder = QDir::toNativeSeparators(folder);
    // A tree of one drive holds only folders of the drive the box shows.
    if (m_kind != View::OneDrive)
        selectDriveOf(m_folder);
    emit folderChosen(m_folder);
}

void DriveFolderChooser::chooseDrive(int index) {
    const QString root = m_drives->itemText(index);
    if (setCurrentFolder(root))
        return;
    // A drive without a medium or rights, or one that went away since the list was filled. The
    // window says so first; then the box shows the drive of the window's folder.
    emit driveUnavailable(root);
    selectDriveOf(m_folder);
}

void DriveFolderChooser::selectDriveOf(const QString& folder) {
    if (folder.isEmpty())
        return;
    QStringList roots;
    for (int i = 0; i < m_drives->count(); ++i)
        roots.append(m_drives->itemText(i));
    qsizetype drive = driveContaining(roots, folder);
    if (drive < 0) {
        // A volume that was mounted after the list was filled.
        const QString root = QStorageInfo(folder).rootPath();
        if (root.isEmpty())
            return;
        m_drives->addItem(QDir::toNativeSeparators(root));
        drive = m_drives->count() - 1;
    }
    m_drives->setCurrentIndex(int(drive));
}

void DriveFolderChooser::showDriveInTree() {
    const QString root = QDir::fromNativeSeparators(m_drives->currentText());
    m_model->setRootPath(root);
    m_view->setRootIndex(m_model->index(root));
}

} // namespace quenfor
