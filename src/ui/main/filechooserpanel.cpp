#include "ui/main/filechooserpanel.h"

#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/panelheader.h"

#include "common/fileexists.h"
#include "common/pathsplit.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Why a folder cannot be shown; empty when it can.
QString folderRefusal(const QString& folder) {
    const QString shown = QDir::toNativeSeparators(folder);
    if (!folderExists(folder))
        return FileChooserPanel::tr("Der Ordner \"%1\" existiert nicht.").arg(shown);
    if (!folderCanBeListed(folder))
        return FileChooserPanel::tr("Der Ordner \"%1\" kann nicht gelesen werden.").arg(shown);
    return QString();
}

} // namespace

FileChooserPanel::FileChooserPanel(QWidget* parent)
    : QFrame(parent), m_chooser(new DriveFolderChooser(this, DriveFolderChooser::View::FolderList)),
      m_folderLabel(new QLabel(this)), m_up(new QPushButton(tr("Übergeordneter Ordner"), this)),
      m_folders(m_chooser->folderList()), m_fileModel(new QFileSystemModel(this)), m_files(new QListView(this)),
      m_pattern(new QComboBox(this)), m_saveName(new QLineEdit(this)),
      m_saveAs(new QPushButton(tr("Speichern als..."), this)), m_message(new QLabel(this)) {
    setObjectName(u"Dateiauswahl"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_files->setObjectName(u"File1"_s);
    m_saveName->setObjectName(u"txt_save"_s);
    m_saveAs->setObjectName(u"cmd_SaveAs"_s);
    m_pattern->setObjectName(u"cbo_pattern"_s);
    m_up->setObjectName(u"cmd_up"_s);
    m_folderLabel->setObjectName(u"lbl_folder"_s);
    m_message->setObjectName(u"lbl_message"_s);

    // Both models read the folders in their own threads, so a huge or slow folder never freezes
    // the window. Hidden entries stay out of the lists. The files are matched case-sensitively,
    // because the pattern names both spellings the program takes for its files (all lower or all
    // upper case) and no mixed one.
    m_fileModel->setFilter(QDir::Files | QDir::CaseSensitive);
    m_fileModel->setNameFilterDisables(false);
    m_files->setModel(m_fileModel);
    m_files->setUniformItemSizes(true);

    m_folders->installEventFilter(this);
    keepViewOnModelRoot(m_files, m_fileModel);

    // Room for a useful number of names even when the window is small.
    for (QListView* view : {m_folders, m_files})
        view->setMinimumSize(200, 6 * fontMetrics().lineSpacing());

    m_folderLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_folderLabel->setWordWrap(true);
    m_message->setWordWrap(true);
    m_message->setStyleSheet(u"color: #c00000;"_s);
    m_message->hide();

    m_pattern->setEditable(true);
    m_pattern->addItems({defaultPattern(), allFilesPattern()});
    m_pattern->setInsertPolicy(QComboBox::NoInsert);
    m_pattern->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_pattern->setMinimumContentsLength(16);
    m_saveAs->setEnabled(false);

    auto* close = new QPushButton(tr("Schließen"), this);
    close->setObjectName(u"cmd_dateiauswahl_schliessen"_s);

    auto* header = makePanelHeader(this, tr("Dateiauswahl"), close, [this] { emit closeRequested(); });

    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(new QLabel(tr("Laufwerk:"), this));
    driveRow->addWidget(m_chooser->driveBox(), 1);

    auto* lists = new QGridLayout;
    lists->addWidget(new QLabel(tr("Ordner"), this), 0, 0);
    lists->addWidget(new QLabel(tr("Dateien"), this), 0, 1);
    lists->addWidget(m_folders, 1, 0);
    lists->addWidget(m_files, 1, 1);
    lists->addWidget(m_up, 2, 0);
    auto* patternRow = new QHBoxLayout;
    patternRow->addWidget(new QLabel(tr("Dateityp:"), this));
    patternRow->addWidget(m_pattern, 1);
    lists->addLayout(patternRow, 2, 1);
    lists->setColumnStretch(0, 1);
    lists->setColumnStretch(1, 1);
    lists->setRowStretch(1, 1);

    auto* saveRow = new QHBoxLayout;
    saveRow->addWidget(new QLabel(tr("Dateiname:"), this));
    saveRow->addWidget(m_saveName, 1);
    saveRow->addWidget(m_saveAs);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addLayout(driveRow);
    layout->addWidget(m_folderLabel);
    layout->addLayout(lists, 1);
    layout->addLayout(saveRow);
    layout->addWidget(m_message);

    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &FileChooserPanel::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this,
            [this](const QString& root) { showMessage(folderRefusal(root)); });
    connect(m_folders, &QListView::activated, this, &FileChooserPanel::enterFolder);
    connect(m_up, &QPushButton::clicked, this, &FileChooserPanel::goUp);
    connect(m_files, &QListView::activated, this, &FileChooserPanel::chooseFile);
    connect(m_pattern, &QComboBox::currentTextChanged, this, &FileChooserPanel::applyPattern);
    connect(m_saveName, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_saveAs->setEnabled(!text.trimmed().isEmpty()); });
    connect(m_saveName, &QLineEdit::returnPressed, this, &FileChooserPanel::requestSaveCopy);
    connect(m_saveAs, &QPushButton::clicked, this, &FileChooserPanel::requestSaveAs);

    applyPattern();
    // The long default pattern reads from its start.
    m_pattern->lineEdit()->setCursorPosition(0);
    setFolder(QDir::homePath());
}

bool FileChooserPanel::setFolder(const QString& folder) {
    const QString refusal = folderRefusal(folder);
    if (!refusal.isEmpty()) {
        showMessage(refusal);
        return false;
    }
    return m_chooser->setCurrentFolder(folder);
}

void FileChooserPanel::showFolder(const QString& folder) {
    showMessage(QString());
    const QString modelPath = QDir::fromNativeSeparators(folder);
    m_fileModel->setRootPath(modelPath);
    m_files->setRootIndex(m_fileModel->index(modelPath));
    m_folderLabel->setText(folder);
    m_up->setEnabled(!QDir(modelPath).isRoot());
    if (folder == m_announced)
        return;
    m_announced = folder;
    emit folderChanged(folder, drive());
}

bool FileChooserPanel::eventFilter(QObject* watched, QEvent* event) {
    // Backspace in the folder list goes up, as in the file managers the users know.
    if (watched == m_folders && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Backspace) {
        goUp();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

QString FileChooserPanel::folder() const {
    return m_chooser->folder();
}

QString FileChooserPanel::drive() const {
    return m_chooser->driveBox()->currentText();
}

void FileChooserPanel::setSaveName(const QString& name) {
    m_saveName->setText(name);
}

QString FileChooserPanel::saveName() const {
    return m_saveName->text();
}

void FileChooserPanel::setPattern(const QString& pattern) {
    m_pattern->setCurrentText(pattern);
    m_pattern->lineEdit()->setCursorPosition(0);
}

QString FileChooserPanel::pattern() const {
    return m_pattern->currentText();
}

QString FileChooserPanel::defaultPattern() {
    return u"*.pro;*.sup;*.dtl;*.pcf;*.scl;*.PRO;*.SUP;*.DTL;*.PCF;*.SCL"_s;
}

QString FileChooserPanel::allFilesPattern() {
    return u"*.*"_s;
}

void FileChooserPanel::enterFolder(const QModelIndex& index) {
    if (index.isValid())
        setFolder(m_chooser->model()->filePath(index));
}

void FileChooserPanel::goUp() {
    QDir dir(QDir::fromNativeSeparators(folder()));
    if (dir.cdUp())
        setFolder(dir.absolutePath());
}

void FileChooserPanel::chooseFile(const QModelIndex& index) {
    if (index.isValid() && !m_fileModel->isDir(index))
        emit fileChosen(joinFolderAndName(folder(), m_fileModel->fileName(index)));
}

void FileChooserPanel::applyPattern() {
    QStringList wildcards;
    for (const QString& part : m_pattern->currentText().split(u';', Qt::SkipEmptyParts)) {
        const QString wildcard = part.trimmed();
        // "*.*" means every file to a Windows user, also those without a dot.
        if (wildcard == u"*.*")
            wildcards.append(u"*"_s);
        else if (!wildcard.isEmpty())
            wildcards.append(wildcard);
    }
    m_fileModel->setNameFilters(wildcards);
}

void FileChooserPanel::requestSaveAs() {
    const QString name = m_saveName->text();
    if (!name.trimmed().isEmpty())
        emit saveAsRequested(folder(), name);
}

void FileChooserPanel::requestSaveCopy() {
    const QString name = m_saveName->text();
    if (!name.trimmed().isEmpty())
        emit saveCopyRequested(folder(), name);
}

void FileChooserPanel::showMessage(const QString& text) {
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

} // namespace quenfor
