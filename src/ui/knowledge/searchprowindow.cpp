#include "ui/knowledge/searchprowindow.h"

#include "common/fileexists.h"
#include "knowledge/searchprotexts.h"
#include "knowledge/searchprowalk.h"
#include "ui/widgets/backgroundjob.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace quenfor {

// What the worker thread and the window share. The thread keeps it alive on its own, so a window
// closed during a walk does not have to wait for the walk to notice the cancel.
struct SearchProJob {
    std::atomic_bool cancel = false;
    std::atomic<qsizetype> found = 0;
    SearchProWalkResult result;
};

namespace {

// Often enough to look alive, seldom enough to cost nothing.
constexpr int kWalkProgressIntervalMs = 100;

} // namespace

SearchProWindow::SearchProWindow(const QString& startFolder, QWidget* parent, const FolderLister& lister)
    : QWidget(parent, Qt::Window), m_lister(lister), m_entries(new QStringListModel(this)),
      m_progressTimer(new QTimer(this)) {
    setObjectName(u"search_pro"_s);
    setWindowTitle(tr("search.pro-Generator +Q+U+E+N+F+O+R+"));
    buildWidgets();

    m_progressTimer->setInterval(kWalkProgressIntervalMs);
    connect(m_progressTimer, &QTimer::timeout, this, &SearchProWindow::showProgress);

    setCurrentFolder(folderExists(startFolder) ? startFolder : QDir::homePath());
    resize(900, 600);
}

SearchProWindow::~SearchProWindow() {
    if (m_job)
        m_job->cancel = true;
}

void SearchProWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    // Drive and folder: the folder list shows only folders, hidden ones left out like the walk does.
    m_chooser = new DriveFolderChooser(this);
    m_chooser->folderTree()->setMinimumSize(280, 12 * fontMetrics().lineSpacing());
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &SearchProWindow::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this, [this](const QString& root) {
        Dialogs::information(this, tr("Das Laufwerk \"%1\" ist nicht bereit.").arg(root));
    });
    m_hints->add(m_chooser->folderTree(), SearchProHints::folderList());

    auto* startCaption = new QLabel(tr("Start-Verzeichnis :"), this);
    startCaption->setObjectName(u"Label2"_s);
    m_startFolder = new QLabel(this);
    m_startFolder->setObjectName(u"lbl_startfolder"_s);
    m_startFolder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_startFolder->setWordWrap(true);

    m_generate = namedButton(u"Command1"_s, tr("Liste generieren"), this);
    connect(m_generate, &QPushButton::clicked, this, &SearchProWindow::generate);
    m_hints->add(m_generate, SearchProHints::generate());

    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(new QLabel(tr("Laufwerk:"), this));
    driveRow->addWidget(m_chooser->driveBox(), 1);
    auto* startRow = new QHBoxLayout;
    startRow->addWidget(startCaption);
    startRow->addWidget(m_startFolder, 1);

    auto* left = new QVBoxLayout;
    left->addLayout(driveRow);
    left->addWidget(m_chooser->folderTree(), 1);
    left->addLayout(startRow);
    left->addWidget(m_generate);

    // The result list, its count and the progress of a running walk.
    m_list = new QListView(this);
    m_list->setObjectName(u"List1"_s);
    m_list->setModel(m_entries);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    m_list->setMinimumWidth(360);
    m_hints->add(m_list, SearchProHints::resultList());
    auto* listCaption = boldLabel(tr("Inhalt der Datei search.pro"), this);
    listCaption->setBuddy(m_list);

    m_count = new QLabel(this);
    m_count->setObjectName(u"Label1"_s);
    m_unreadable = new QLabel(this);
    m_unreadable->setObjectName(u"lbl_unreadable"_s);
    m_unreadable->setWordWrap(true);
    m_unreadable->setStyleSheet(u"color: #c00000;"_s);
    m_unreadable->hide();
    // Hidden folders are left out on purpose; the note says which, so the list is not taken for all.
    m_hidden = new QLabel(this);
    m_hidden->setObjectName(u"lbl_hidden"_s);
    m_hidden->setWordWrap(true);
    m_hidden->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_hidden->hide();

    m_progressBar = new QProgressBar(this);
    m_progressBar->setObjectName(u"prg_walk"_s);
    m_progressBar->setRange(0, 0); // the number of folders is known only at the end
    m_progressBar->setTextVisible(false);
    m_progressText = new QLabel(this);
    m_progressText->setObjectName(u"lbl_progress"_s);
    m_cancel = namedButton(u"cmd_cancel"_s, tr("Abbrechen"), this);
    connect(m_cancel, &QPushButton::clicked, this, &SearchProWindow::cancelGeneration);
    auto* progressRow = new QHBoxLayout;
    progressRow->addWidget(m_progressBar, 1);
    progressRow->addWidget(m_progressText);
    progressRow->addWidget(m_cancel);

    m_transferAll = namedButton(u"cmd_toform"_s, tr("Gesamtergebnis in Liste übertragen"), this);
    connect(m_transferAll, &QPushButton::clicked, this, &SearchProWindow::transferAll);
    m_hints->add(m_transferAll, SearchProHints::transferAll());
    m_transferSelection = namedButton(u"cmd_selectedtoform"_s, tr("Nur Auswahl übertragen"), this);
    connect(m_transferSelection, &QPushButton::clicked, this, &SearchProWindow::transferSelection);
    m_hints->add(m_transferSelection, SearchProHints::transferSelection());
    m_createFile = namedButton(u"cmd_search_file"_s, tr("Datei search.pro erstellen"), this);
    connect(m_createFile, &QPushButton::clicked, this, &SearchProWindow::chooseFileName);
    m_saveInfo = namedButton(u"cmd_wodenn"_s, tr("Wo wird die Datei gespeichert?"), this);
    connect(m_saveInfo, &QPushButton::clicked, this, &SearchProWindow::showSaveInfo);

    m_saveInfoText = new QPlainTextEdit(this);
    m_saveInfoText->setObjectName(u"txt_info"_s);
    m_saveInfoText->setReadOnly(true);
    m_saveInfoText->setMaximumHeight(4 * fontMetrics().lineSpacing() + 12);
    m_saveInfoText->hide();

    auto* buttons = new QGridLayout;
    buttons->addWidget(m_transferAll, 0, 0);
    buttons->addWidget(m_transferSelection, 0, 1);
    buttons->addWidget(m_createFile, 1, 0);
    buttons->addWidget(m_saveInfo, 1, 1);

    auto* right = new QVBoxLayout;
    right->addWidget(listCaption);
    right->addWidget(m_list, 1);
    right->addWidget(m_count);
    right->addWidget(m_unreadable);
    right->addWidget(m_hidden);
    right->addLayout(progressRow);
    right->addLayout(buttons);
    right->addWidget(m_saveInfoText);

    m_close = namedButton(u"Command3"_s, tr("Schließen"), this);
    connect(m_close, &QPushButton::clicked, this, &SearchProWindow::closeGenerator);

    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 2);
    columns->addLayout(right, 3);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_close, 0, Qt::AlignBottom);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(bottom);

    setRunning(false);
}

void SearchProWindow::setCurrentFolder(const QString& folder) {
    if (!m_chooser->setCurrentFolder(folder))
        m_status->setText(tr("Der Ordner \"%1\" existiert nicht.").arg(QDir::toNativeSeparators(folder)));
}

void SearchProWindow::showFolder(const QString& folder) {
    m_folder = folder;
    m_startFolder->setText(m_folder);
    m_hints->add(m_createFile, SearchProHints::createFile(m_folder));
}

void SearchProWindow::generate() {
    if (m_job)
        return;
    auto job = std::make_shared<SearchProJob>();
    m_job = job;
    m_entries->setStringList({});
    m_count->clear();
    m_unreadable->clear();
    m_unreadable->hide();
    m_hidden->clear();
    m_hidden->setToolTip({});
    m_hidden->hide();
    setRunning(true);
    showProgress();

    const QString start = m_folder;
    const FolderLister* lister = &m_lister;
    runInBackground(
        this,
        [job, start, lister] {
            job->result = SearchProWalk(*lister).run(
                start, [&job = *job](qsizetype found) { job.found.store(found, std::memory_order_relaxed); },
                &job->cancel);
        },
        [this, job] {
            if (m_job == job)
                finishGeneration();
        });
    m_progressTimer->start();
}

void SearchProWindow::cancelGeneration() {
    if (!m_job)
        return;
    m_job->cancel = true;
    m_cancel->setEnabled(false);
    m_progressText->setText(tr("wird abgebrochen …"));
}

void SearchProWindow::showProgress() {
    if (m_job && !m_job->cancel)
        m_progressText->setText(tr("%1 Verzeichnisse gefunden").arg(m_job->found.load(std::memory_order_relaxed)));
}

void SearchProWindow::finishGeneration() {
    const std::shared_ptr<SearchProJob> job = std::move(m_job);
    m_progressTimer->stop();
    setRunning(false);
    SearchProWalkResult& result = job->result;
    if (!result.error.isEmpty()) {
        m_status->setText(result.error);
        Dialogs::information(this, result.error);
    } else if (result.cancelled) {
        // Half a list would make a search.pro that silently misses folders.
        m_status->setText(tr("Abgebrochen: die Liste wurde verworfen."));
    } else {
        m_entries->setStringList(std::move(result.folders));
        m_count->setText(searchProTotalText(m_entries->rowCount()));
        const QString unreadable = searchProUnreadableText(result.unreadable);
        m_unreadable->setText(unreadable);
        m_unreadable->setVisible(!unreadable.isEmpty());
        m_hidden->setText(searchProHiddenText(result.hidden));
        constexpr qsizetype kTipLines = 30; // a tree full of ".git" folders must not fill the screen
        m_hidden->setToolTip(result.hidden.mid(0, kTipLines).join(u'\n') +
                             (result.hidden.size() > kTipLines ? u"\n…"_s : QString()));
        m_hidden->setVisible(!result.hidden.isEmpty());
        m_status->clear();
    }
    emit generationFinished();
}

void SearchProWindow::setRunning(bool running) {
    m_progressBar->setVisible(running);
    m_progressText->setVisible(running);
    m_cancel->setVisible(running);
    m_cancel->setEnabled(running);
    m_generate->setEnabled(!running);
    m_transferAll->setEnabled(!running);
    m_transferSelection->setEnabled(!running);
}

QStringList SearchProWindow::entries() const {
    return m_entries->stringList();
}

void SearchProWindow::transferAll() {
    emit linesToDocument(m_entries->stringList(), true);
}

void SearchProWindow::transferSelection() {
    QList<int> rows;
    for (const QModelIndex& index : m_list->selectionModel()->selectedRows())
        rows.append(index.row());
    if (rows.isEmpty()) {
        m_status->setText(tr("Es ist kein Eintrag ausgewählt."));
        return;
    }
    // In list order, whatever order the user picked them in.
    std::sort(rows.begin(), rows.end());
    const QStringList all = m_entries->stringList();
    QStringList lines;
    lines.reserve(rows.size());
    for (int row : rows)
        lines.append(all.at(row));
    emit linesToDocument(lines, false);
}

void SearchProWindow::chooseFileName() {
    emit fileNameChosen(searchProFileName(m_folder));
}

void SearchProWindow::showSaveInfo() {
    m_saveInfoText->setPlainText(searchProSaveInfoLines().join(u'\n'));
    m_saveInfoText->show();
}

void SearchProWindow::closeGenerator() {
    emit closing();
    close();
}

void SearchProWindow::closeEvent(QCloseEvent* event) {
    cancelGeneration();
    QWidget::closeEvent(event);
}

} // namespace quenfor
