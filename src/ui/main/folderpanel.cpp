#include "ui/main/folderpanel.h"

#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include <QClipboard>
#include <QDir>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

FolderPanel::FolderPanel(QWidget* parent)
    : QFrame(parent), m_model(new QFileSystemModel(this)), m_tree(makeFolderTree(this, m_model)),
      m_chosen(new QLabel(this)), m_copy(new QPushButton(tr("Pfad kopieren"), this)),
      m_close(new QPushButton(tr("Ausblenden"), this)) {
    setObjectName(u"frameDir"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_tree->setObjectName(u"tree_dir"_s);
    m_tree->setMinimumSize(320, 8 * fontMetrics().lineSpacing());

    m_chosen->setObjectName(u"lbl_dir"_s);
    m_chosen->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_chosen->setWordWrap(true);
    m_copy->setObjectName(u"cmd_browser"_s);
    m_copy->setEnabled(false);
    m_close->setObjectName(u"cmd_exit_sp"_s);

    auto* header = makePanelHeader(this, tr("Datei Browser"), m_close, [this] { emit closeRequested(); });

    auto* footer = new QHBoxLayout;
    footer->addWidget(m_chosen, 1);
    footer->addWidget(m_copy);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_tree, 1);
    layout->addLayout(footer);

    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &FolderPanel::showChosenFolder);
    keepCurrentFolderInView(m_tree, m_model);
    connect(m_copy, &QPushButton::clicked, this, &FolderPanel::copyChosenFolder);
}

void FolderPanel::registerHints(StatusHints& hints) {
    hints.add(m_copy, tr("Pfade mit einem kleinen Browser finden und als Textstring in die Zwischenablage kopieren"));
    hints.add(m_close, tr("blendet dieses Feld aus"));
}

void FolderPanel::setFolder(const QString& folder) {
    showFolderInTree(m_tree, m_model, folder);
}

QString FolderPanel::chosenFolder() const {
    const QModelIndex index = m_tree->currentIndex();
    return index.isValid() ? QDir::toNativeSeparators(m_model->filePath(index)) : QString();
}

void FolderPanel::showChosenFolder() {
    const QString folder = chosenFolder();
    m_chosen->setText(folder);
    m_copy->setEnabled(!folder.isEmpty());
}

void FolderPanel::copyChosenFolder() {
    const QString folder = chosenFolder();
    if (!folder.isEmpty())
        QGuiApplication::clipboard()->setText(folder);
}

} // namespace quenfor
