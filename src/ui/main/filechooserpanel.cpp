#include "ui/main/filechooserpanel.h"

#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/panelheader.h"

#include "common/pathseparators.h"
#include "common/pathsplit.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStorageInfo>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity kPathCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity kPathCase = Qt::CaseSensitive;
#endif

QString normalisedFolder(const QString& folder) {
    return QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()));
}

bool isReadableFolder(const QFileInfo& info) {
#ifdef Q_OS_WIN
    return info.isReadable();
#else
    // Listing a folder needs the right to read it and to pass through it.
    return info.isReadable() && info.isExecutable();
#endif
}

} // namespace

FileChooserPanel::FileChooserPanel(QWidget* parent)
    : QFrame(parent), m_drives(new QComboBox(this)), m_folderLabel(new QLabel(this)),
      m_up(new QPushButton(tr("Übergeordneter Ordner"), this)), m_folderModel(new QFileSystemModel(this)),
      m_folders(new QListView(this)), m_fileModel(new QFileSystemModel(this)), m_files(new QListView(this)),
      m_pattern(new QComboBox(this)), m_saveName(new QLineEdit(this)),
      m_saveAs(new QPushButton(tr("Speichern als..."), this)), m_message(new QLabel(this)) {
    setObjectName(u"Dateiauswahl"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_drives->setObjectName(u"Drive1"_s);
    m_folders->setObjectName(u"Dir1"_s);
    m_files->setObjectName(u"File1"_s);
    m_saveName->setObjectName(u"txt_save"_s);
    m_saveAs->setObjectName(u"cmd_SaveAs"_s);
    m_pattern->setObjectName(u"cbo_pattern"_s);
    m_up->setObjectName(u"cmd_up"_s);
    m_folderLabel->setObjectName(u"lbl_folder"_s);
    m_message->setObjectName(u"lbl_message"_s);

    // Both models read the folders in their own threads, so a huge or slow folder never freezes
    // the window. Hidden entries stay out of the lists.
    m_folderModel->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    m_folders->setModel(m_folderModel);
    m_folders->setUniformItemSizes(true);
    // Case-sensitive, because the pattern names both spellings the program takes for its files
    // (all lower or all upper case) and no mixed one.
    m_fileModel->setFilter(QDir::Files | QDir::CaseSensitive);
    m_fileModel->setNameFilterDisables(false);
    m_files->setModel(m_fileModel);
    m_files->setUniformItemSizes(true);

    m_folders->installEventFilter(this);
    // A model that hides folders drops a drive root ("/") for a moment when it learns that the root
    // is a folder, and the view then loses its root and shows the drive list. Each change of the
    // models puts the shown folder back.
    for (QFileSystemModel* model : {m_folderModel, m_fileModel}) {
        connect(model, &QAbstractItemModel::rowsInserted, this, &FileChooserPanel::keepRootIndices);
        connect(model, &QAbstractItemModel::layoutChanged, this, &FileChooserPanel::keepRootIndices);
    }

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
    driveRow->addWidget(m_drives, 1);

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

    connect(m_drives, &QComboBox::activated, this, &FileChooserPanel::chooseDrive);
    connect(m_folders, &QListView::activated, this, &FileChooserPanel::enterFolder);
    connect(m_up, &QPushButton::clicked, this, &FileChooserPanel::goUp);
    connect(m_files, &QListView::activated, this, &FileChooserPanel::chooseFile);
    connect(m_pattern, &QComboBox::currentTextChanged, this, &FileChooserPanel::applyPattern);
    connect(m_saveName, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_saveAs->setEnabled(!text.trimmed().isEmpty()); });
    connect(m_saveName, &QLineEdit::returnPressed, this, &FileChooserPanel::requestSaveCopy);
    connect(m_saveAs, &QPushButton::clicked, this, &FileChooserPanel::requestSaveAs);

    fillDrives();
    applyPattern();
    // The long default pattern reads from its start.
    m_pattern->lineEdit()->setCursorPosition(0);
    setFolder(QDir::homePath());
}

bool FileChooserPanel::setFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir()) {
        showMessage(tr("Der Ordner \"%1\" existiert nicht.").arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    if (!isReadableFolder(info)) {
        showMessage(tr("Der Ordner \"%1\" kann nicht gelesen werden.").arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    showMessage(QString());

    const QString shown = normalisedFolder(folder);
    const QString modelPath = QDir::fromNativeSeparators(shown);
    m_folderModel->setRootPath(modelPath);
    m_fileModel->setRootPath(modelPath);
    keepRootIndices();
    m_folderLabel->setText(shown);
    m_up->setEnabled(!QDir(modelPath).isRoot());
    if (shown == m_folder)
        return true;
    m_folder = shown;
    selectDriveOf(shown);
    emit folderChanged(m_folder, drive());
    return true;
}

void FileChooserPanel::keepRootIndices() {
    for (QListView* view : {m_folders, m_files}) {
        const auto* model = static_cast<const QFileSystemModel*>(view->model());
        const QModelIndex root = model->index(model->rootPath());
        if (view->rootIndex() != root)
            view->setRootIndex(root);
    }
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
    return m_folder;
}

QString FileChooserPanel::drive() const {
    return m_drives->currentText();
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

void FileChooserPanel::fillDrives() {
    fillDriveBox(m_drives);
}

void FileChooserPanel::selectDriveOf(const QString& folder) {
    // The drive is the longest listed root that the folder lies under ("/home" before "/").
    const QString path = QDir::fromNativeSeparators(folder);
    int best = -1;
    qsizetype bestLength = -1;
    for (int i = 0; i < m_drives->count(); ++i) {
        const QString root = QDir::fromNativeSeparators(m_drives->itemText(i));
        if (root.size() > bestLength && beginsWithPathPrefix(path, root, kPathCase)) {
            best = i;
            bestLength = root.size();
        }
    }
    if (best < 0) {
        // A volume that mounted after the list was filled.
        m_drives->addItem(QDir::toNativeSeparators(QStorageInfo(folder).rootPath()));
        best = m_drives->count() - 1;
    }
    m_drives->setCurrentIndex(best);
}

void FileChooserPanel::chooseDrive(int index) {
    if (!setFolder(m_drives->itemText(index)))
        selectDriveOf(m_folder);
}

void FileChooserPanel::enterFolder(const QModelIndex& index) {
    if (index.isValid())
        setFolder(m_folderModel->filePath(index));
}

void FileChooserPanel::goUp() {
    QDir dir(QDir::fromNativeSeparators(m_folder));
    if (dir.cdUp())
        setFolder(dir.absolutePath());
}

void FileChooserPanel::chooseFile(const QModelIndex& index) {
    if (index.isValid() && !m_fileModel->isDir(index))
        emit fileChosen(joinFolderAndName(m_folder, m_fileModel->fileName(index)));
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
        emit saveAsRequested(m_folder, name);
}

void FileChooserPanel::requestSaveCopy() {
    const QString name = m_saveName->text();
    if (!name.trimmed().isEmpty())
        emit saveCopyRequested(m_folder, name);
}

void FileChooserPanel::showMessage(const QString& text) {
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

} // namespace quenfor
