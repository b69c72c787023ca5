#include "ui/desktools/skribbfilebox.h"

#include "common/fileexists.h"
#include "desktools/editorfile.h"
#include "desktools/editorfilelist.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/rightbuttondrag.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

SkribbFileBox::SkribbFileBox(Mode mode, QWidget* parent)
    : QFrame(parent), m_mode(mode), m_drives(makeDriveBox(this)), m_folderModel(new QFileSystemModel(this)),
      m_folderTree(makeFolderTree(this, m_folderModel)) {
    const bool open = mode == Mode::Open;
    setObjectName(open ? u"Dateiauswahl"_s : u"Dateiauswahl2"_s);
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    makeDraggableWithRightButton(this);

    m_drives->setObjectName(open ? u"Drive1"_s : u"Drive2"_s);
    m_folderTree->setObjectName(open ? u"Dir1"_s : u"Dir2"_s);
    m_folderTree->setMinimumSize(230, 12 * fontMetrics().lineSpacing());
    connect(m_drives, &QComboBox::activated, this, &SkribbFileBox::chooseDrive);
    connect(m_folderTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SkribbFileBox::showCurrentFolder);
    // Rows above the chosen folder arrive later from the model's thread; keep it in view.
    keepCurrentFolderInView(m_folderTree, m_folderModel);

    auto* title = new QLabel(open ? tr("Datei öffnen") : tr("Speichern unter"), this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* close = new QToolButton(this);
    close->setObjectName(open ? u"lbl_X"_s : u"lbl_X2"_s);
    close->setText(tr("X"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* header = new QHBoxLayout;
    header->addWidget(title);
    header->addStretch();
    header->addWidget(close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(new QLabel(tr("Laufwerk:"), this));
    driveRow->addWidget(m_drives, 1);
    layout->addLayout(driveRow);

    if (open) {
        m_files = new QListWidget(this);
        m_files->setObjectName(u"File1"_s);
        m_files->setMinimumWidth(200);
        m_files->setUniformItemSizes(true);
        connect(m_files, &QListWidget::itemDoubleClicked, this, &SkribbFileBox::requestLoad);
        connect(m_files, &QListWidget::itemActivated, this, &SkribbFileBox::requestLoad);
        m_pattern = new QLineEdit(u"*.pro"_s, this);
        m_pattern->setObjectName(u"Filter"_s);
        connect(m_pattern, &QLineEdit::textChanged, this, &SkribbFileBox::refreshFiles);
        auto* load = namedButton(u"cmdLoad"_s, tr("laden"), this);
        connect(load, &QPushButton::clicked, this, &SkribbFileBox::requestLoad);

        auto* lists = new QGridLayout;
        lists->addWidget(new QLabel(tr("Verzeichnisse"), this), 0, 0);
        lists->addWidget(new QLabel(tr("Dateien"), this), 0, 1);
        lists->addWidget(m_folderTree, 1, 0, 2, 1);
        lists->addWidget(m_files, 1, 1);
        auto* patternRow = new QHBoxLayout;
        patternRow->addWidget(new QLabel(tr("Filter:"), this));
        patternRow->addWidget(m_pattern, 1);
        patternRow->addWidget(load);
        lists->addLayout(patternRow, 2, 1);
        lists->setColumnStretch(0, 1);
        lists->setColumnStretch(1, 1);
        layout->addLayout(lists, 1);
    } else {
        m_name = new QLineEdit(this);
        m_name->setObjectName(u"txt_name"_s);
        auto* save = namedButton(u"saveas"_s, tr("speichern"), this);
        const auto request = [this] { emit saveAsRequested(m_folder, m_name->text()); };
        connect(save, &QPushButton::clicked, this, request);
        connect(m_name, &QLineEdit::returnPressed, this, request);
        layout->addWidget(new QLabel(tr("Verzeichnis"), this));
        layout->addWidget(m_folderTree, 1);
        auto* nameRow = new QHBoxLayout;
        nameRow->addWidget(new QLabel(tr("Dateiname:"), this));
        nameRow->addWidget(m_name, 1);
        nameRow->addWidget(save);
        layout->addLayout(nameRow);
    }
    auto* hint = new QLabel(tr("Die Box kann mit der rechten Maustaste bewegt werden."), this);
    hint->setEnabled(false);
    layout->addWidget(hint);
    resize(open ? 560 : 380, 380);
    hide();
}

bool SkribbFileBox::setFolder(const QString& folder) {
    const QModelIndex index =
        folderExists(folder) ? m_folderModel->index(QDir::fromNativeSeparators(folder)) : QModelIndex();
    if (!index.isValid())
        return false;
    m_folderTree->setCurrentIndex(index);
    m_folderTree->expand(index);
    m_folderTree->scrollTo(index);
    // The same index again announces nothing; the box must still show this folder.
    showCurrentFolder();
    return true;
}

QString SkribbFileBox::drive() const {
    return m_drives->currentText();
}

void SkribbFileBox::setPattern(const QString& pattern) {
    if (m_pattern)
        m_pattern->setText(pattern);
}

QString SkribbFileBox::pattern() const {
    return m_pattern ? m_pattern->text() : QString();
}

QStringList SkribbFileBox::files() const {
    QStringList names;
    for (int i = 0; m_files && i < m_files->count(); ++i)
        names.append(m_files->item(i)->text());
    return names;
}

bool SkribbFileBox::selectFile(const QString& name) {
    const QList<QListWidgetItem*> found =
        m_files ? m_files->findItems(name, Qt::MatchExactly) : QList<QListWidgetItem*>();
    if (found.isEmpty())
        return false;
    m_files->setCurrentItem(found.first());
    return true;
}

void SkribbFileBox::setFileName(const QString& name) {
    if (m_name)
        m_name->setText(name);
}

void SkribbFileBox::showOverParent(QPoint defaultPlace) {
    if (!m_placed) {
        move(defaultPlace);
        m_placed = true;
    }
    // A window made smaller since may have left the box outside.
    if (const QWidget* owner = parentWidget())
        move(std::clamp(x(), 0, std::max(0, owner->width() - width())),
             std::clamp(y(), 0, std::max(0, owner->height() - height())));
    show();
    raise();
}

void SkribbFileBox::chooseDrive(int index) {
    const QString root = m_drives->itemText(index);
    if (folderExists(root) && setFolder(root))
        return;
    Dialogs::information(this, QString::fromUtf16(kEditorDriveMissing));
    selectDriveOf(m_drives, m_folder);
}

void SkribbFileBox::showCurrentFolder() {
    const QModelIndex index = m_folderTree->currentIndex();
    if (!index.isValid())
        return;
    m_folder = QDir::toNativeSeparators(m_folderModel->filePath(index));
    selectDriveOf(m_drives, m_folder);
    refreshFiles();
    emit folderChanged(m_folder, drive());
}

void SkribbFileBox::refreshFiles() {
    if (!m_files)
        return;
    m_files->clear();
    m_files->addItems(editorFilesIn(m_folder, m_pattern->text()));
}

void SkribbFileBox::requestLoad() {
    const QListWidgetItem* item = m_files->currentItem();
    emit loadRequested(m_folder, item && item->isSelected() ? item->text() : QString());
}

} // namespace quenfor
