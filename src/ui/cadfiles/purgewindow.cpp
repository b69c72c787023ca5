#include "ui/cadfiles/purgewindow.h"

#include "cadfiles/cleanpatterns.h"
#include "cadfiles/directorylisting.h"
#include "cadfiles/filechangetext.h"
#include "cadfiles/purgeanalysis.h"
#include "cadfiles/purgedelete.h"
#include "cadfiles/purgesettings.h"
#include "cadfiles/purgetree.h"
#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/readablenamedelegate.h"
#include "ui/widgets/statushints.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStringListModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Work per timer tick: long enough to get on, short enough that the window never feels stuck.
constexpr int kSliceMs = 30;
constexpr qsizetype kFilesPerCheck = 50;

QListView* makeList(const QString& name, QStringListModel* model, QWidget* parent) {
    auto* list = new QListView(parent);
    list->setObjectName(name);
    list->setModel(model);
    list->setItemDelegate(new ReadableNameDelegate(list));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    return list;
}

} // namespace

PurgeWindow::PurgeWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), m_files(new QStringListModel(this)), m_purge(new QStringListModel(this)),
      m_cleanFiles(new QStringListModel(this)), m_sliceTimer(new QTimer(this)) {
    setObjectName(u"frmPurge"_s);
    setWindowTitle(tr("Dr.Fegel"));
    buildWidgets();
    m_sliceTimer->setInterval(0);
    connect(m_sliceTimer, &QTimer::timeout, this, &PurgeWindow::runSlice);

    const PurgeSettings settings = PurgeSettings::load();
    setCurrentFolder(folderExists(settings.folder) ? settings.folder : PurgeSettings::defaultFolder());
    analyse();
    applyPatternText(settings.cleaningPatterns);
    resize(1100, 640);
}

PurgeWindow::~PurgeWindow() = default;

void PurgeWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblStatus"_s);
    m_hints = new StatusHints(m_status, this);

    // Drive, folder and the folder's files.
    m_chooser = new DriveFolderChooser(this);
    m_chooser->folderTree()->setMinimumWidth(260);
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &PurgeWindow::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this, [this] {
        m_status->setText(tr("Laufwerk nicht verfügbar !"));
        refreshFileLists();
    });
    m_fileList = makeList(u"File1"_s, m_files, this);
    connect(m_fileList, &QListView::clicked, this,
            [this](const QModelIndex& index) { showChangeTime(index, m_files, false); });

    auto* left = new QVBoxLayout;
    left->addWidget(boldLabel(tr("Verzeichnis wählen"), this));
    left->addWidget(m_chooser->driveBox());
    left->addWidget(m_chooser->folderTree(), 3);
    left->addWidget(new QLabel(tr("files"), this));
    left->addWidget(m_fileList, 2);

    // The purge.
    m_purgeList = makeList(u"List4"_s, m_purge, this);
    m_purgeList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(m_purgeList, &QListView::clicked, this,
            [this](const QModelIndex& index) { showChangeTime(index, m_purge, true); });
    auto* analyseButton = namedButton(u"Command1"_s, tr("analysieren"), this);
    connect(analyseButton, &QPushButton::clicked, this, &PurgeWindow::analyse);
    auto* purgeAllButton = namedButton(u"cmd_delAll"_s, tr("purge"), this);
    connect(purgeAllButton, &QPushButton::clicked, this, &PurgeWindow::purgeAll);
    m_hints->add(purgeAllButton,
                 tr("löscht alle Dateien im ausgewählten Verzeichniss die eine niedrigere Versionsnummer haben"));
    auto* purgeSelectedButton = namedButton(u"cmd_delsel"_s, tr("purge selected"), this);
    connect(purgeSelectedButton, &QPushButton::clicked, this, &PurgeWindow::purgeSelected);
    m_hints->add(purgeSelectedButton, tr("löscht nur die ausgewählten Dateien"));
    auto* purgeTreeButton = namedButton(u"Command2"_s, tr("purge incl. subdirectories"), this);
    connect(purgeTreeButton, &QPushButton::clicked, this, &PurgeWindow::purgeTree);
    m_hints->add(purgeTreeButton, tr("purged alle Unterverzeichnisse abwärts der gewählten Position"));
    m_askPurge = new QCheckBox(tr("abfragen"), this);
    m_askPurge->setObjectName(u"chkpurge"_s);

    auto* purgeButtons = new QGridLayout;
    purgeButtons->addWidget(analyseButton, 0, 0);
    purgeButtons->addWidget(purgeAllButton, 0, 1);
    purgeButtons->addWidget(purgeSelectedButton, 1, 1);
    purgeButtons->addWidget(purgeTreeButton, 2, 0, 1, 2);
    purgeButtons->addWidget(m_askPurge, 3, 0, 1, 2);
    auto* middle = new QVBoxLayout;
    middle->addWidget(boldLabel(tr("to purge"), this));
    middle->addWidget(m_purgeList, 1);
    middle->addLayout(purgeButtons);

    // The clean.
    auto* cleanCaption = boldLabel(tr("clean"), this);
    cleanCaption->setObjectName(u"lblclean"_s);
    m_hints->add(cleanCaption,
                 tr("löschen von "
                    "*.bom*;*.inf*;*.m_p*;*.log*;*.ptd*;*.idx*;*.pls*;*.crc*;*.out*;*.tst*;*.err*;*.lst*;*.als*"));
    m_patterns = new QLineEdit(this);
    m_patterns->setObjectName(u"txt_cleaningOptions"_s);
    // The clean list keeps the patterns applied on load or by OK: what it shows is what "clean"
    // deletes, never the half-typed text of the box.
    connect(m_patterns, &QLineEdit::textEdited, this, [this] {
        m_status->setText(tr("Die Muster im Feld gelten ab dem nächsten Öffnen; \"clean\" löscht die angezeigte "
                             "Liste (ändern mit \"Endungen\" und OK)."));
    });
    m_cleanList = makeList(u"File2"_s, m_cleanFiles, this);
    connect(m_cleanList, &QListView::clicked, this,
            [this](const QModelIndex& index) { showChangeTime(index, m_cleanFiles, false); });
    auto* cleanButton = namedButton(u"cmd_clean"_s, tr("clean"), this);
    connect(cleanButton, &QPushButton::clicked, this, &PurgeWindow::clean);
    auto* cleanTreeButton = namedButton(u"Command3"_s, tr("clean incl. subdirectories"), this);
    connect(cleanTreeButton, &QPushButton::clicked, this, &PurgeWindow::cleanTree);
    m_hints->add(cleanTreeButton,
                 tr("reinigt alle Unterverzeichnisse abwärts der gewählten Position von überflüssigen Dateien"));
    m_askClean = new QCheckBox(tr("abfragen"), this);
    m_askClean->setObjectName(u"chkclean"_s);
    auto* optionsButton = namedButton(u"cmd_what"_s, tr("Endungen"), this);
    connect(optionsButton, &QPushButton::clicked, this, &PurgeWindow::showOptions);

    auto* cleanButtons = new QGridLayout;
    cleanButtons->addWidget(cleanButton, 0, 0);
    cleanButtons->addWidget(optionsButton, 0, 1);
    cleanButtons->addWidget(cleanTreeButton, 1, 0, 1, 2);
    cleanButtons->addWidget(m_askClean, 2, 0, 1, 2);
    auto* right = new QVBoxLayout;
    right->addWidget(cleanCaption);
    right->addWidget(m_patterns);
    right->addWidget(m_cleanList, 1);
    right->addLayout(cleanButtons);
    right->addWidget(buildOptionsFrame());

    m_actionButtons = {analyseButton, purgeAllButton,  purgeSelectedButton, purgeTreeButton,
                       cleanButton,   cleanTreeButton, optionsButton};

    // Progress of a running delete, with its cancel button.
    m_progressBar = new QProgressBar(this);
    m_progressBar->setObjectName(u"prg_run"_s);
    m_progressText = new QLabel(this);
    m_progressText->setObjectName(u"lbl_progress"_s);
    m_cancel = namedButton(u"cmd_cancel"_s, tr("Abbrechen"), this);
    connect(m_cancel, &QPushButton::clicked, this, &PurgeWindow::cancelRun);

    auto* info = namedButton(u"img_info"_s, tr("?"), this);
    m_hints->add(info, tr("info..."));
    connect(info, &QPushButton::clicked, this, [this] {
        Dialogs::information(this, tr("Dr.Fegel löscht von jedem Objekt (name.typ.N) alle Versionen außer der "
                                      "höchsten und reinigt Arbeitsverzeichnisse von Nebenprodukten des "
                                      "CAD-Systems nach der Liste der Endungen."));
    });
    auto* exitButton = namedButton(u"Image_EXIT"_s, tr("Schließen"), this);
    connect(exitButton, &QPushButton::clicked, this, &QWidget::close);

    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 3);
    columns->addLayout(middle, 4);
    columns->addLayout(right, 3);
    auto* progressRow = new QHBoxLayout;
    progressRow->addWidget(m_progressBar, 1);
    progressRow->addWidget(m_progressText, 1);
    progressRow->addWidget(m_cancel);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(info, 0, Qt::AlignBottom);
    bottom->addWidget(exitButton, 0, Qt::AlignBottom);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(progressRow);
    layout->addLayout(bottom);
    setRunning(false);
}

QWidget* PurgeWindow::buildOptionsFrame() {
    m_optionsFrame = new QGroupBox(tr("cleaning Options"), this);
    m_optionsFrame->setObjectName(u"Frame2"_s);
    m_extensions = new QListWidget(m_optionsFrame);
    m_extensions->setObjectName(u"Lstend"_s);
    m_extensions->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_extensions->setMinimumHeight(6 * fontMetrics().lineSpacing());
    m_newExtension = new QLineEdit(m_optionsFrame);
    m_newExtension->setObjectName(u"add"_s);
    m_newExtension->setPlaceholderText(tr("z. B. trl"));
    connect(m_newExtension, &QLineEdit::returnPressed, this, &PurgeWindow::addExtension);
    auto* addButton = namedButton(u"cmd_add"_s, tr("hinzufügen"), m_optionsFrame);
    connect(addButton, &QPushButton::clicked, this, &PurgeWindow::addExtension);
    auto* removeButton = namedButton(u"cmd_weg"_s, tr("entfernen"), m_optionsFrame);
    connect(removeButton, &QPushButton::clicked, this, &PurgeWindow::removeExtensions);
    auto* okButton = namedButton(u"cmd_ok"_s, tr("OK"), m_optionsFrame);
    connect(okButton, &QPushButton::clicked, this, &PurgeWindow::applyOptions);
    auto* resetButton = namedButton(u"cmd_reset"_s, tr("Reset"), m_optionsFrame);
    connect(resetButton, &QPushButton::clicked, this, &PurgeWindow::resetPatterns);
    auto* closeButton = namedButton(u"cmd_exOpts"_s, tr("abbrechen"), m_optionsFrame);
    connect(closeButton, &QPushButton::clicked, this, [this] {
        // Leaving without applying restores the list as it was when the frame opened.
        m_extensions->clear();
        m_extensions->addItems(m_extensionsBefore);
        m_optionsFrame->hide();
    });

    auto* grid = new QGridLayout(m_optionsFrame);
    grid->addWidget(m_extensions, 0, 0, 4, 1);
    grid->addWidget(m_newExtension, 0, 1);
    grid->addWidget(addButton, 1, 1);
    grid->addWidget(removeButton, 2, 1);
    grid->addWidget(resetButton, 3, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(okButton);
    row->addWidget(closeButton);
    grid->addLayout(row, 4, 0, 1, 2);
    m_optionsFrame->hide();
    return m_optionsFrame;
}

void PurgeWindow::setCurrentFolder(const QString& folder) {
    if (!m_chooser->setCurrentFolder(folder))
        m_status->setText(tr("Das Verzeichnis \"%1\" existiert nicht.").arg(QDir::toNativeSeparators(folder)));
}

void PurgeWindow::showFolder(const QString& folder) {
    m_folder = folder;
    // The purge list is left alone: the analysis is an explicit step.
    refreshFileLists();
}

void PurgeWindow::refreshFileLists() {
    DirectoryEntries entries = listDirectory(m_folder);
    sortLikeFileList(entries.files);
    m_files->setStringList(entries.files);
    m_cleanFiles->setStringList(CleaningPatterns(m_cleanPatterns).filter(entries.files));
}

void PurgeWindow::applyPatternText(const QString& text) {
    showPatternText(text);
    m_cleanPatterns = text;
    refreshFileLists();
}

void PurgeWindow::showPatternText(const QString& text) {
    m_patterns->setText(text);
    m_extensions->clear();
    m_extensions->addItems(extensionsFromPatterns(text));
}

void PurgeWindow::analyse() {
    if (isRunning())
        return;
    refreshFileLists();
    m_purge->setStringList(purgeCandidates(m_folder, m_files->stringList()));
}

QStringList PurgeWindow::purgeList() const {
    return m_purge->stringList();
}

void PurgeWindow::purgeAll() {
    startListDelete(m_purge->stringList(), false);
}

void PurgeWindow::purgeSelected() {
    QModelIndexList rows = m_purgeList->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        m_status->setText(tr("Es ist keine Datei ausgewählt."));
        return;
    }
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const QModelIndex& row : std::as_const(rows))
        paths.append(m_purge->data(row).toString());
    startListDelete(paths, false);
}

void PurgeWindow::clean() {
    QStringList paths;
    for (const QString& name : m_cleanFiles->stringList())
        paths.append(joinFolderAndName(m_folder, name));
    startListDelete(paths, true);
}

void PurgeWindow::purgeTree() {
    startTreeRun(false);
}

void PurgeWindow::cleanTree() {
    startTreeRun(true);
}

bool PurgeWindow::isRunning() const {
    return m_sliceTimer->isActive();
}

void PurgeWindow::startListDelete(const QStringList& paths, bool isClean) {
    if (isRunning())
        return;
    m_pendingDeletes = paths;
    m_deleteIndex = 0;
    m_deleted.clear();
    m_vanished.clear();
    m_failed.clear();
    m_cleanListed = isClean ? paths.size() : -1;
    m_cancelRequested = false;
    m_progressBar->setRange(0, int(qMax<qsizetype>(1, paths.size())));
    m_progressBar->setValue(0);
    setRunning(true);
    m_sliceTimer->start();
}

void PurgeWindow::startTreeRun(bool isClean) {
    if (isRunning())
        return;
    if (isClean && CleaningPatterns(m_cleanPatterns).isEmpty()) {
        m_status->setText(tr("Die Liste der Endungen ist leer: es wird nichts gelöscht."));
        return;
    }
    TreeOptions options{isClean ? TreeTask::Clean : TreeTask::Purge, m_cleanPatterns, true, false};
    m_tree = std::make_unique<TreeRun>(m_folder, options);
    QCheckBox* ask = isClean ? m_askClean : m_askPurge;
    if (ask->isChecked()) {
        m_tree->setAsk([this](const QString& folder) {
            // Showing the folder it is about to work on keeps the user oriented while answering.
            m_status->setText(folder);
            return Dialogs::warning(this, folder) == Dialogs::Answer::Ok;
        });
    }
    m_cancelRequested = false;
    m_progressBar->setRange(0, 0);
    setRunning(true);
    m_sliceTimer->start();
}

void PurgeWindow::runSlice() {
    // The per-folder question opens a nested event loop in which the timer keeps firing.
    if (m_inSlice)
        return;
    const QScopedValueRollback<bool> inSlice(m_inSlice, true);
    QElapsedTimer slice;
    slice.start();
    if (m_tree) {
        while (!m_cancelRequested && slice.elapsed() < kSliceMs && m_tree->step()) {
        }
        if (m_cancelRequested)
            m_tree->cancel();
        if (m_tree->isCollecting()) {
            m_progressBar->setRange(0, 0);
        } else {
            m_progressBar->setRange(0, int(m_tree->result().folders.size()));
            m_progressBar->setValue(int(m_tree->foldersDone()));
        }
        m_progressText->setText(m_tree->progressText());
        if (m_tree->isFinished())
            finishRun();
        return;
    }
    while (!m_cancelRequested && m_deleteIndex < m_pendingDeletes.size() && slice.elapsed() < kSliceMs) {
        const QStringList chunk = m_pendingDeletes.mid(m_deleteIndex, kFilesPerCheck);
        const DeleteReport report = deleteFiles(chunk);
        m_deleted.append(report.deleted);
        m_vanished.append(report.vanished);
        m_failed.append(report.failed);
        m_deleteIndex += chunk.size();
    }
    m_progressBar->setValue(int(m_deleteIndex));
    m_progressText->setText(tr("%1 von %2 Dateien").arg(m_deleteIndex).arg(m_pendingDeletes.size()));
    if (m_cancelRequested || m_deleteIndex >= m_pendingDeletes.size())
        finishRun();
}

void PurgeWindow::finishRun() {
    m_sliceTimer->stop();
    setRunning(false);
    QString text;
    if (m_tree) {
        const TreeResult result = m_tree->result();
        m_tree.reset();
        text = treeSummary(result, false);
        // Back to the folder where the run started.
        if (!result.folders.isEmpty())
            setCurrentFolder(result.folders.front());
    } else if (m_cleanListed >= 0 && !m_cancelRequested) {
        // A finished clean counts the files it listed, also those it could not delete.
        text = tr("%1 gelöscht").arg(m_cleanListed);
        if (!m_failed.isEmpty())
            text += tr(", davon %1 nicht löschbar").arg(m_failed.size());
    } else {
        // A cancelled run can only count what it really did; the rest stays where it was.
        text = DeleteReport{m_deleted, m_vanished, m_failed}.summary();
        const qsizetype untouched = m_pendingDeletes.size() - m_deleteIndex;
        if (untouched > 0)
            text += tr(", %1 nicht bearbeitet").arg(untouched);
    }
    if (m_cancelRequested)
        text = tr("Abgebrochen: ") + text;
    m_pendingDeletes.clear();
    refreshFileLists();
    m_status->setText(text);
    emit runFinished();
}

void PurgeWindow::cancelRun() {
    if (isRunning())
        m_cancelRequested = true;
}

void PurgeWindow::setRunning(bool running) {
    m_progressBar->setVisible(running);
    m_progressText->setVisible(running);
    m_cancel->setVisible(running);
    for (QPushButton* button : std::as_const(m_actionButtons))
        button->setEnabled(!running);
    m_chooser->setEnabled(!running);
}

void PurgeWindow::showChangeTime(const QModelIndex& index, const QStringListModel* model, bool fullPaths) {
    const QString entry = model->data(index).toString();
    m_status->setText(fileChangeText(fullPaths ? entry : joinFolderAndName(m_folder, entry)));
}

void PurgeWindow::showOptions() {
    m_extensionsBefore.clear();
    for (int i = 0; i < m_extensions->count(); ++i)
        m_extensionsBefore.append(m_extensions->item(i)->text());
    m_optionsFrame->show();
    m_newExtension->setFocus();
}

void PurgeWindow::addExtension() {
    const QString extension = m_newExtension->text().trimmed();
    if (extension.isEmpty())
        return;
    m_extensions->addItem(extension);
    m_newExtension->clear();
}

void PurgeWindow::removeExtensions() {
    qDeleteAll(m_extensions->selectedItems());
}

void PurgeWindow::applyOptions() {
    QStringList extensions;
    for (int i = 0; i < m_extensions->count(); ++i)
        extensions.append(m_extensions->item(i)->text());
    // The extensions list stays as entered; it is cut into 3-character pieces only on the next load.
    m_cleanPatterns = patternsFromExtensions(extensions);
    m_patterns->setText(m_cleanPatterns);
    refreshFileLists();
    m_optionsFrame->hide();
}

void PurgeWindow::resetPatterns() {
    // Like any change of the list, the defaults reach the clean list with OK.
    showPatternText(defaultCleaningPatterns());
}

void PurgeWindow::closeEvent(QCloseEvent* event) {
    cancelRun();
    if (m_tree)
        m_tree->cancel();
    m_sliceTimer->stop();
    if (!PurgeSettings{m_folder, m_patterns->text()}.save())
        m_status->setText(tr("Die Einstellungen konnten nicht gespeichert werden."));
    QWidget::closeEvent(event);
}

} // namespace quenfor
