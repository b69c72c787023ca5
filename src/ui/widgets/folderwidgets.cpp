#include "ui/widgets/folderwidgets.h"

#include "common/drivecontaining.h"
#include "common/drives.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace quenfor {

QLabel* makeStatusLine(QWidget* parent, const QString& objectName) {
    auto* status = new QLabel(parent);
    status->setObjectName(objectName);
    status->setWordWrap(true);
    status->setFrameShape(QFrame::StyledPanel);
    status->setMinimumHeight(2 * status->fontMetrics().lineSpacing() + 6);
    status->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return status;
}

void fillDriveBox(QComboBox* box) {
    for (const QString& root : logicalDrives())
        box->addItem(QDir::toNativeSeparators(root));
}

void selectDriveOf(QComboBox* box, const QString& folder) {
    QStringList roots;
    for (int i = 0; i < box->count(); ++i)
        roots.append(box->itemText(i));
    const qsizetype drive = driveContaining(roots, folder);
    if (drive >= 0)
        box->setCurrentIndex(int(drive));
}

QComboBox* makeDriveBox(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(u"Drive1"_s);
    fillDriveBox(box);
    return box;
}

QTreeView* makeFolderTree(QWidget* parent, QFileSystemModel* model) {
    model->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
    model->setRootPath(QString());
    auto* tree = new QTreeView(parent);
    tree->setObjectName(u"Dir1"_s);
    tree->setModel(model);
    for (int column = 1; column < model->columnCount(); ++column)
        tree->hideColumn(column);
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    return tree;
}

bool showFolderInTree(QTreeView* tree, QFileSystemModel* model, const QString& folder) {
    const QModelIndex index = model->index(QDir::fromNativeSeparators(folder));
    if (!index.isValid())
        return false;
    tree->setCurrentIndex(index);
    tree->expand(index);
    tree->scrollTo(index);
    return true;
}

void keepCurrentFolderInView(QTreeView* tree, QFileSystemModel* model) {
    QObject::connect(model, &QFileSystemModel::directoryLoaded, tree, [tree] {
        if (tree->currentIndex().isValid())
            tree->scrollTo(tree->currentIndex());
    });
}

} // namespace quenfor
