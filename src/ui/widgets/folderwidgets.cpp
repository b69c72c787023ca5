#include "ui/widgets/folderwidgets.h"

#include "common/drives.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileSystemModel>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
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

QComboBox* makeDriveBox(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(u"Drive1"_s);
    for (const QString& root : logicalDrives())
        box->addItem(QDir::toNativeSeparators(root));
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

namespace {

// Set while the tree should keep its current folder in view; the user's own input ends it.
constexpr char kKeepInView[] = "quenforKeepCurrentFolderInView";

class UserTakesOverTree : public QObject {
public:
    explicit UserTakesOverTree(QTreeView* tree) : QObject(tree), m_tree(tree) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::Wheel || type == QEvent::KeyPress)
            m_tree->setProperty(kKeepInView, false);
        return QObject::eventFilter(watched, event);
    }

private:
    QTreeView* m_tree;
};

} // namespace

bool showFolderInTree(QTreeView* tree, QFileSystemModel* model, const QString& folder) {
    const QModelIndex index = model->index(QDir::fromNativeSeparators(folder));
    if (!index.isValid())
        return false;
    tree->setCurrentIndex(index);
    tree->expand(index);
    tree->scrollTo(index, QAbstractItemView::PositionAtCenter);
    tree->setProperty(kKeepInView, true);
    return true;
}

void keepCurrentFolderInView(QTreeView* tree, QFileSystemModel* model) {
    auto* scroll = new QTimer(tree);
    scroll->setSingleShot(true);
    scroll->setInterval(0);
    QObject::connect(scroll, &QTimer::timeout, tree, [tree] {
        if (tree->currentIndex().isValid())
            tree->scrollTo(tree->currentIndex(), QAbstractItemView::PositionAtCenter);
    });
    // Loading and sorting come in bursts; one scroll after each burst is enough.
    const auto rowsMoved = [tree, scroll] {
        if (tree->property(kKeepInView).toBool())
            scroll->start();
    };
    QObject::connect(model, &QFileSystemModel::directoryLoaded, tree, rowsMoved);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, tree, rowsMoved);
    QObject::connect(model, &QAbstractItemModel::rowsInserted, tree, rowsMoved);
    auto* userInput = new UserTakesOverTree(tree);
    for (QObject* watched : {static_cast<QObject*>(tree), static_cast<QObject*>(tree->viewport()),
                             static_cast<QObject*>(tree->verticalScrollBar())})
        watched->installEventFilter(userInput);
}

void keepViewOnModelRoot(QAbstractItemView* view, QFileSystemModel* model) {
    const auto showRoot = [view, model] {
        const QModelIndex root = model->index(model->rootPath());
        if (view->rootIndex() != root)
            view->setRootIndex(root);
    };
    QObject::connect(model, &QAbstractItemModel::rowsInserted, view, showRoot);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, view, showRoot);
}

} // namespace quenfor
