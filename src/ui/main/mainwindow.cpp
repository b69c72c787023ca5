#include "ui/main/mainwindow.h"

#include "document/configdocument.h"
#include "ui/knowledge/favoritespanel.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/main/colourpanel.h"
#include "ui/main/documentlistview.h"
#include "ui/main/entrylinepanel.h"
#include "ui/main/filechooserpanel.h"
#include "ui/main/folderpanel.h"
#include "ui/main/mainhints.h"
#include "ui/main/tempdirpanel.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/panelroom.h"
#include "ui/widgets/statushints.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QLabel* makeLabel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), m_document(new ConfigDocument(this)) {
    setObjectName(u"Form1"_s);
    setWindowTitle(u"quenfor"_s);
    buildLayout();
    m_menus = buildMainMenus(menuBar());

    m_hints = new StatusHints(m_status, this);
    registerMainWindowHints(this, *m_hints);
    m_folders->registerHints(*m_hints);
    connectMenus();
    connectEditing();
    connectUndo();
    connectTools();
    connectPanels();
    connectKnowledge();
    connectGenerators();
    connectCadFiles();
    connectDeskTools();
    connectLint();
    connectCompare();
    showMarked(-1);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildLayout() {
    auto* central = new QWidget(this);
    central->setObjectName(u"centralWidget"_s);

    m_fileLabel = makeLabel(u"Label1"_s, central);
    m_fileLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_entry = new EntryLinePanel(central);
    m_list = new DocumentListView(m_document, central);
    m_tools = new ToolColumn(central);
    m_picker = new PickerPanel(central);
    m_contextMenu = new ContextMenuPanel(central);

    m_centre = new QStackedWidget(central);
    m_centre->setObjectName(u"centre"_s);
    m_chooser = new FileChooserPanel(m_centre);
    m_folders = new FolderPanel(m_centre);
    m_centre->addWidget(m_list);
    m_centre->addWidget(m_chooser);
    m_centre->addWidget(m_folders);
    m_tempDir = new TempDirPanel(central);
    m_tempDir->hide();
    m_colours = new ColourPanel(central);
    m_colours->hide();
    m_favorites = new FavoritesPanel(central);
    m_favorites->hide();

    // The buttons scroll when a panel above leaves them too little height, so the window need
    // not grow past a laptop's screen.
    auto* toolScroller = new QScrollArea(central);
    toolScroller->setObjectName(u"toolScroller"_s);
    toolScroller->setFrameShape(QFrame::NoFrame);
    toolScroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    toolScroller->setWidgetResizable(true);
    toolScroller->setWidget(m_tools);
    toolScroller->setFixedWidth(m_tools->sizeHint().width() + toolScroller->verticalScrollBar()->sizeHint().width());

    auto* middle = new QHBoxLayout;
    middle->addWidget(toolScroller);
    middle->addWidget(m_centre, 1);
    middle->addWidget(m_picker);

    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(6, 6, 6, 2);
    layout->addWidget(m_fileLabel);
    layout->addWidget(m_entry);
    layout->addWidget(m_tempDir);
    layout->addWidget(m_colours);
    layout->addWidget(m_favorites);
    layout->addLayout(middle, 1);
    setCentralWidget(central);
    for (QWidget* panel :
         {static_cast<QWidget*>(m_tempDir), static_cast<QWidget*>(m_colours), static_cast<QWidget*>(m_favorites)})
        giveBackRoomWhenHidden(panel);

    m_number = makeLabel(u"lblnumber"_s, this);
    m_number->setMinimumWidth(70);
    m_status = makeLabel(u"lblstatus"_s, this);
    m_pathOk = makeLabel(u"img_pathok"_s, this);
    m_pathOk->setStyleSheet(u"color: #008000;"_s);
    m_pathNotValid = makeLabel(u"img_pathnotvalid"_s, this);
    m_pathNotValid->setStyleSheet(u"color: #c00000;"_s);
    m_pathOk->hide();
    m_pathNotValid->hide();
    statusBar()->addWidget(m_number);
    statusBar()->addWidget(m_status, 1);
    statusBar()->addPermanentWidget(m_pathOk);
    statusBar()->addPermanentWidget(m_pathNotValid);

    resize(1000, 720);
}

void MainWindow::setStatus(const QString& text) {
    m_status->setText(text);
}

QString MainWindow::status() const {
    return m_status->text();
}

void MainWindow::showMarked(int row) {
    m_number->setText(row < 0 ? u"Nr."_s : QString::number(row));
    // The entry line always holds the current line, however it became current (a click, the keys,
    // a hit of the search): Enter then replaces that line and no other.
    if (row >= 0 && row < m_document->count() && m_entry->text() != m_document->line(row))
        m_entry->setText(m_document->line(row));
}

void MainWindow::showContextMenu(const QPoint& globalPos) {
    const QPoint local = centralWidget()->mapFromGlobal(globalPos);
    m_contextMenu->adjustSize();
    const QRect area = centralWidget()->rect();
    const int x = qMin(local.x(), area.width() - m_contextMenu->width());
    const int y = qMin(local.y(), area.height() - m_contextMenu->height());
    m_contextMenu->move(qMax(0, x), qMax(0, y));
    m_contextMenu->raise();
    m_contextMenu->show();
}

} // namespace quenfor
