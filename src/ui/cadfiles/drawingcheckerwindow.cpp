#include "ui/cadfiles/drawingcheckerwindow.h"

#include "cadfiles/drawingcheckersettings.h"
#include "cadfiles/drawingfoldercheck.h"
#include "cadfiles/drawingmodel.h"
#include "cadfiles/drawingmodellist.h"
#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "settings/mainsettings.h"
#include "settings/storeddrive.h"
#include "ui/widgets/backgroundjob.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/statushints.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <atomic>

using namespace Qt::StringLiterals;

namespace quenfor {

// Shared by the window and the worker thread; the thread keeps it alive, so a window closed
// during a check does not wait for the check to notice the cancel.
struct DrawingCheckJob {
    std::atomic_bool cancel = false;
    std::atomic<qsizetype> done = 0;
    qsizetype total = 0;
    QString folder;
    DrawingFolderCheck result;
};

namespace {

// Often enough to look alive, seldom enough to cost nothing.
constexpr int kCheckProgressIntervalMs = 100;

} // namespace

DrawingCheckerWindow::DrawingCheckerWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), m_codepage(settingValue(Setting::Codepage)), m_progressTimer(new QTimer(this)) {
    setObjectName(u"frm_drw_mdl_checker"_s);
    setWindowTitle(tr("drw_mdl_checker"));
    buildWidgets();
    m_progressTimer->setInterval(kCheckProgressIntervalMs);
    connect(m_progressTimer, &QTimer::timeout, this, &DrawingCheckerWindow::showProgress);
    restoreSettings();
    resize(820, 560);
}

DrawingCheckerWindow::~DrawingCheckerWindow() {
    if (m_job)
        m_job->cancel = true;
}

void DrawingCheckerWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblStatus"_s);
    m_hints = new StatusHints(m_status, this);

    auto* info = new QLabel(tr("Tool zur Überprüfung ob die Zeichnung ein Modell gleichen Namens enthält"), this);
    info->setObjectName(u"lbl_info"_s);
    info->setWordWrap(true);
    QFont infoFont = info->font();
    infoFont.setBold(true);
    info->setFont(infoFont);

    m_chooser = new DriveFolderChooser(this);
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &DrawingCheckerWindow::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this,
            [this] { m_status->setText(tr("Laufwerk nicht verfügbar !")); });
    m_hints->add(m_chooser->driveBox(), tr("Laufwerk wählen"));

    m_chooser->folderTree()->setMinimumSize(260, 14 * fontMetrics().lineSpacing());
    m_hints->add(m_chooser->folderTree(), tr("Verzeichnis mit den Zeichnungen wählen"));

    m_files = new QListWidget(this);
    m_files->setObjectName(u"File1"_s);
    m_files->setUniformItemSizes(true);
    m_files->setMinimumWidth(200);
    connect(m_files, &QListWidget::itemClicked, this, &DrawingCheckerWindow::fileClicked);
    m_hints->add(m_files,
                 tr("Zeichnung anklicken: ihr Modellname wird gelesen und mit dem Zeichnungsnamen verglichen"));

    m_modelName = new QLineEdit(this);
    m_modelName->setObjectName(u"Text1"_s);
    m_modelName->setReadOnly(true);
    auto* modelCaption = new QLabel(tr("Modellname:"), this);
    modelCaption->setBuddy(m_modelName);
    // What the drawing lists itself: drawings of current releases hold no name at the position.
    m_listedModels = new QLabel(this);
    m_listedModels->setObjectName(u"lbl_modelle"_s);
    m_listedModels->setWordWrap(true);
    m_listedModels->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_listedModels->hide();

    m_differing = new QListWidget(this);
    m_differing->setObjectName(u"List1"_s);
    m_differing->setUniformItemSizes(true);
    connect(m_differing, &QListWidget::itemClicked, this, &DrawingCheckerWindow::differingClicked);
    m_hints->add(m_differing, tr("Eintrag anklicken: die Zeichnung wird in der Dateiliste ausgewählt"));
    auto* differingCaption = new QLabel(tr("Zeichnungsname nicht gleich Modellname:"), this);
    differingCaption->setBuddy(m_differing);

    m_check = new QPushButton(tr("Prüfe das gesamte Verzeichnis"), this);
    m_check->setObjectName(u"cmd_check"_s);
    m_check->setAutoDefault(false);
    connect(m_check, &QPushButton::clicked, this, &DrawingCheckerWindow::checkFolder);
    m_hints->add(m_check, tr("Prüft alle Zeichnungen (*.drw*) des Verzeichnisses"));

    m_progressBar = new QProgressBar(this);
    m_progressBar->setObjectName(u"prg_check"_s);
    m_progressBar->setFormat(tr("%v von %m"));
    m_cancel = new QPushButton(tr("Abbrechen"), this);
    m_cancel->setObjectName(u"cmd_cancel"_s);
    m_cancel->setAutoDefault(false);
    connect(m_cancel, &QPushButton::clicked, this, &DrawingCheckerWindow::cancelCheck);
    auto* progressRow = new QHBoxLayout;
    progressRow->addWidget(m_progressBar, 1);
    progressRow->addWidget(m_cancel);

    m_note = new QLabel(this);
    m_note->setObjectName(u"lbl_note"_s);
    m_note->setWordWrap(true);
    m_note->setStyleSheet(u"color: #a04000;"_s);
    // Room for the longest note, so that the layout never clips it.
    m_note->setMinimumHeight(4 * fontMetrics().lineSpacing());
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_note->hide();

    auto* left = new QVBoxLayout;
    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(new QLabel(tr("Laufwerk:"), this));
    driveRow->addWidget(m_chooser->driveBox(), 1);
    left->addLayout(driveRow);
    left->addWidget(m_chooser->folderTree(), 1);

    auto* middle = new QVBoxLayout;
    middle->addWidget(new QLabel(tr("Zeichnungen:"), this));
    middle->addWidget(m_files, 1);

    auto* right = new QVBoxLayout;
    right->addWidget(modelCaption);
    right->addWidget(m_modelName);
    right->addWidget(m_listedModels);
    right->addWidget(m_note);
    right->addSpacing(8);
    right->addWidget(differingCaption);
    right->addWidget(m_differing, 1);
    right->addWidget(m_check);
    right->addLayout(progressRow);

    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 3);
    columns->addLayout(middle, 2);
    columns->addLayout(right, 3);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(info);
    layout->addLayout(columns, 1);
    layout->addWidget(m_status);

    setRunning(false);
}

void DrawingCheckerWindow::restoreSettings() {
    const DrawingCheckerSettings stored = loadDrawingCheckerSettings();
    if (folderExists(stored.folder))
        setCurrentFolder(stored.folder);
    else if (folderExists(driveRootOf(stored.drive)))
        setCurrentFolder(driveRootOf(stored.drive));
    else
        setCurrentFolder(QDir::homePath());
}

void DrawingCheckerWindow::closeEvent(QCloseEvent* event) {
    cancelCheck();
    storeDrawingCheckerSettings({m_folder, storedDriveOf(m_chooser->driveBox()->currentText())});
    QWidget::closeEvent(event);
}

bool DrawingCheckerWindow::setCurrentFolder(const QString& folder) {
    if (m_chooser->setCurrentFolder(folder))
        return true;
    m_status->setText(tr("Das Verzeichnis \"%1\" gibt es nicht.").arg(QDir::toNativeSeparators(folder)));
    return false;
}

void DrawingCheckerWindow::showFolder(const QString& folder) {
    m_folder = folder;
    refreshFiles();
}

void DrawingCheckerWindow::refreshFiles() {
    m_files->clear();
    m_files->addItems(drawingFilesIn(m_folder));
}

QStringList DrawingCheckerWindow::drawingFiles() const {
    QStringList names;
    names.reserve(m_files->count());
    for (int i = 0; i < m_files->count(); ++i)
        names.append(m_files->item(i)->text());
    return names;
}

void DrawingCheckerWindow::fileClicked(QListWidgetItem* item) {
    if (item)
        checkFile(item->text());
}

void DrawingCheckerWindow::checkFile(const QString& fileName) {
    const DrawingCheck check = checkDrawingWithModelList(joinFolderAndName(m_folder, fileName), m_codepage);
    if (check.read == DrawingRead::Missing) {
        // Gone since the list was made: nothing to read, and the list is out of date.
        setNote(drawingCheckNote(check));
        setListedModels({});
        refreshFiles();
        return;
    }
    m_modelName->setText(check.modelName);
    setListedModels(check.listedModels);
    m_status->setText(drawingCheckStatusText(check));
    setNote(drawingCheckNote(check));
}

void DrawingCheckerWindow::differingClicked(QListWidgetItem* item) {
    if (!item)
        return;
    const qsizetype row = firstFileStartingWith(drawingFiles(), item->text());
    if (row < 0)
        return;
    m_files->setCurrentRow(int(row));
    m_files->scrollToItem(m_files->item(int(row)));
}

void DrawingCheckerWindow::checkFolder() {
    if (m_job)
        return;
    auto job = std::make_shared<DrawingCheckJob>();
    job->folder = m_folder;
    const QStringList files = drawingFiles();
    job->total = files.size();
    m_job = job;
    m_differing->clear();
    setNote({});
    m_progressBar->setRange(0, int(std::min<qsizetype>(job->total, INT_MAX)));
    m_progressBar->setValue(0);
    setRunning(true);

    const QString codepage = m_codepage;
    runInBackground(
        this,
        [job, files, codepage] {
            job->result = checkDrawings(
                job->folder, files, codepage,
                [&job = *job](qsizetype done, qsizetype) { job.done.store(done, std::memory_order_relaxed); },
                &job->cancel);
        },
        [this, job] {
            if (m_job == job)
                finishCheck();
        });
    m_progressTimer->start();
}

void DrawingCheckerWindow::cancelCheck() {
    if (!m_job)
        return;
    m_job->cancel = true;
    m_cancel->setEnabled(false);
    m_status->setText(tr("wird abgebrochen …"));
}

void DrawingCheckerWindow::showProgress() {
    if (m_job)
        m_progressBar->setValue(int(std::min<qsizetype>(m_job->done.load(std::memory_order_relaxed), INT_MAX)));
}

void DrawingCheckerWindow::finishCheck() {
    const std::shared_ptr<DrawingCheckJob> job = std::move(m_job);
    m_progressTimer->stop();
    setRunning(false);
    const DrawingFolderCheck& result = job->result;
    m_differing->addItems(result.differing);
    for (qsizetype i = 0; i < result.differingModels.size() && i < m_differing->count(); ++i)
        m_differing->item(int(i))->setToolTip(drawingModelListText(result.differingModels[i]));
    if (!result.error.isEmpty())
        m_status->setText(result.error);
    else if (result.cancelled)
        m_status->setText(checkCancelledText(result.done, result.listed));
    else
        m_status->setText(filesCheckedText(result.listed));

    qsizetype unreadable = 0;
    for (const DrawingCheck& check : result.checks) {
        if (check.read == DrawingRead::ShortHeader || check.read == DrawingRead::Unreadable ||
            check.read == DrawingRead::NotAFile)
            ++unreadable;
    }
    if (unreadable > 0)
        setNote(tr("Hinweis: Bei %1 von %2 Zeichnungen steht kein Modellname an Zeichen %3 (erste Zeile zu kurz "
                   "oder Datei nicht lesbar); sie sind in der Liste.")
                    .arg(unreadable)
                    .arg(result.checks.size())
                    .arg(kModelNamePosition));
    emit folderCheckFinished();
}

void DrawingCheckerWindow::setRunning(bool running) {
    m_progressBar->setVisible(running);
    m_cancel->setVisible(running);
    m_cancel->setEnabled(running);
    m_check->setEnabled(!running);
    m_chooser->setEnabled(!running);
}

void DrawingCheckerWindow::setListedModels(const QStringList& names) {
    m_listedModels->setText(drawingModelListText(names));
    m_listedModels->setVisible(!names.isEmpty());
}

void DrawingCheckerWindow::setNote(const QString& note) {
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

} // namespace quenfor
