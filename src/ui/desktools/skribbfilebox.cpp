#include "ui/desktools/skribbfilebox.h"

#include "desktools/editorfile.h"
#include "desktools/editorfilelist.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/rightbuttondrag.h"

#include <QComboBox>
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
    : QFrame(parent), m_mode(mode), m_chooser(new DriveFolderChooser(this)) {
    const bool open = mode == Mode::Open;
    setObjectName(open ? u"Dateiauswahl"_s : u"Dateiauswahl2"_s);
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    makeDraggableWithRightButton(this);

    QComboBox* drives = m_chooser->driveBox();
    QTreeView* folders = m_chooser->folderTree();
    if (!open) {
        drives->setObjectName(u"Drive2"_s);
        folders->setObjectName(u"Dir2"_s);
    }
    folders->setMinimumSize(230, 12 * fontMetrics().lineSpacing());
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &SkribbFileBox::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this,
            [this] { Dialogs::information(this, QString::fromUtf16(kEditorDriveMissing)); });

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
    driveRow->addWidget(drives, 1);
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
        lists->addWidget(folders, 1, 0, 2, 1);
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
        const auto request = [this] { emit saveAsRequested(folder(), m_name->text()); };
        connect(save, &QPushButton::clicked, this, request);
        connect(m_name, &QLineEdit::returnPressed, this, request);
        layout->addWidget(new QLabel(tr("Verzeichnis"), this));
        layout->addWidget(folders, 1);
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
    return m_chooser->setCurrentFolder(folder);
}

QString SkribbFileBox::folder() const {
    return m_chooser->folder();
}

QString SkribbFileBox::drive() const {
    return m_chooser->driveBox()->currentText();
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

void SkribbFileBox::showFolder(const QString& folder) {
    refreshFiles();
    emit folderChanged(folder, drive());
}

void SkribbFileBox::refreshFiles() {
    if (!m_files)
        return;
    m_files->clear();
    m_files->addItems(editorFilesIn(folder(), m_pattern->text()));
}

void SkribbFileBox::requestLoad() {
    const QListWidgetItem* item = m_files->currentItem();
    emit loadRequested(folder(), item && item->isSelected() ? item->text() : QString());
}

} // namespace quenfor
