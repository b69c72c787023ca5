#include "ui/knowledge/favoritespanel.h"

#include "ui/main/entrylinepanel.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include "common/fileexists.h"
#include "knowledge/favorites.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QStorageInfo>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

bool isReadableFavouriteFolder(const QString& folder) {
    const QFileInfo info(folder);
#ifdef Q_OS_WIN
    return info.isDir() && info.isReadable();
#else
    // Listing a folder needs the right to read it and to pass through it.
    return info.isDir() && info.isReadable() && info.isExecutable();
#endif
}

} // namespace

FavoritesPanel::FavoritesPanel(QWidget* parent)
    : QFrame(parent), m_drives(new QComboBox(this)), m_model(new QFileSystemModel(this)),
      m_folders(new QTreeView(this)), m_path(new QLineEdit(this)), m_name(new QLineEdit(this)),
      m_add(new QPushButton(tr("Favorit hinzufügen"), this)), m_close(new QPushButton(tr("Schließen"), this)),
      m_help(new QLabel(tr("Was ist ein Favorit?"), this)), m_message(new QLabel(this)),
      m_keepInView(new QTimer(this)) {
    setObjectName(u"Favoriten"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_drives->setObjectName(u"Drive_Favo"_s);
    m_folders->setObjectName(u"Dir_Favo"_s);
    m_path->setObjectName(u"txt_Favo"_s);
    m_name->setObjectName(u"txt_Favoname"_s);
    m_add->setObjectName(u"cmd_favo"_s);
    m_close->setObjectName(u"cmd_favoExit"_s);
    m_help->setObjectName(u"lbl_favohelp"_s);
    m_message->setObjectName(u"lbl_favomeldung"_s);

    // The model reads folders in its own thread, so a slow network folder never freezes the window.
    m_model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    m_folders->setModel(m_model);
    for (int column = 1; column < m_model->columnCount(); ++column)
        m_folders->hideColumn(column);
    m_folders->setHeaderHidden(true);
    m_folders->setUniformRowHeights(true);
    m_folders->setMinimumSize(260, 6 * fontMetrics().lineSpacing());

    m_path->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    m_path->setClearButtonEnabled(true);
    m_name->setClearButtonEnabled(true);

    // The help label behaves like a link: it is clicked, not read.
    QFont linkFont = m_help->font();
    linkFont.setUnderline(true);
    m_help->setFont(linkFont);
    m_help->setStyleSheet(u"color: #0000c0;"_s);
    m_help->setCursor(Qt::PointingHandCursor);
    m_help->installEventFilter(this);

    m_message->setWordWrap(true);
    m_message->setStyleSheet(u"color: #c00000;"_s);
    m_message->hide();

    auto* header = makePanelHeader(this, tr("Favoritenkonstruktor"), m_close, [this] { emit closeRequested(); });

    auto* driveRow = new QHBoxLayout;
    auto* driveLabel = new QLabel(tr("Laufwerk:"), this);
    driveLabel->setBuddy(m_drives);
    driveRow->addWidget(driveLabel);
    driveRow->addWidget(m_drives, 1);

    auto* pathLabel = new QLabel(tr("Verzeichnis des Favoriten"), this);
    pathLabel->setBuddy(m_path);
    auto* nameLabel = new QLabel(tr("Bezeichnung des Favoriten"), this);
    nameLabel->setBuddy(m_name);

    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_add);
    buttonRow->addStretch();
    buttonRow->addWidget(m_help);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addLayout(driveRow);
    layout->addWidget(m_folders, 1);
    layout->addWidget(pathLabel);
    layout->addWidget(m_path);
    layout->addWidget(nameLabel);
    layout->addWidget(m_name);
    layout->addLayout(buttonRow);
    layout->addWidget(m_message);

    connect(m_drives, &QComboBox::activated, this, &FavoritesPanel::chooseDrive);
    connect(m_folders->selectionModel(), &QItemSelectionModel::currentChanged, this, &FavoritesPanel::folderChosen);
    // The rows around a folder shown from a path arrive later from the model's thread and are
    // sorted later still; the folder is kept in view until the user takes over the browser.
    m_keepInView->setSingleShot(true);
    m_keepInView->setInterval(0);
    connect(m_keepInView, &QTimer::timeout, this, [this] {
        if (m_folders->currentIndex().isValid())
            m_folders->scrollTo(m_folders->currentIndex(), QAbstractItemView::PositionAtCenter);
    });
    const auto rowsMoved = [this] {
        if (m_keepFolderInView)
            m_keepInView->start();
    };
    connect(m_model, &QFileSystemModel::directoryLoaded, this, rowsMoved);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, rowsMoved);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, rowsMoved);
    for (QObject* userInput : {static_cast<QObject*>(m_folders), static_cast<QObject*>(m_folders->viewport()),
                               static_cast<QObject*>(m_folders->verticalScrollBar())})
        userInput->installEventFilter(this);
    connect(m_path, &QLineEdit::textChanged, this, &FavoritesPanel::colourPath);
    connect(m_path, &QLineEdit::textEdited, this, &FavoritesPanel::pathEdited);
    connect(m_add, &QPushButton::clicked, this,
            [this] { emit lineToDocument(favoriteLine(m_path->text(), m_name->text())); });

    fillDrives();
    // The browser starts in the home folder; the fields stay empty until the user chooses.
    m_followingPath = true;
    showFolder(QDir::homePath());
    m_followingPath = false;
    colourPath();
}

void FavoritesPanel::registerHints(StatusHints& hints) {
    hints.add(m_drives, tr("Laufwerk des Favoritenverzeichnisses wählen"));
    hints.add(m_folders, tr("Verzeichnis wählen, das der Dateibrowser als Favorit zeigen soll"));
    hints.add(m_path, tr("Verzeichnis des Favoriten; rot, wenn es nicht existiert"));
    hints.add(m_name, tr("Name, unter dem der Favorit im Dateibrowser erscheint (ohne Leerzeichen)"));
    hints.add(m_add, tr("Hängt die Favoritenzeile an das Ende der Datei an"));
    hints.add(m_help, tr("Zeigt die Erklärung zu browser_favorite"));
    hints.add(m_close, tr("blendet dieses Feld aus"));
}

QString FavoritesPanel::takeApart(const QString& entryLine) {
    const FavoriteParts parts = takeFavoriteApart(entryLine);
    if (parts.isFavorite) {
        showMessage(QString());
        m_path->setText(parts.path);
        if (parts.pathIsFolder) {
            // The path stays as the line writes it; only the browser moves.
            m_followingPath = true;
            showFolder(parts.path);
            m_followingPath = false;
        }
        if (!parts.name.isEmpty())
            m_name->setText(parts.name);
    }
    show();
    return parts.entryLine;
}

QString FavoritesPanel::path() const {
    return m_path->text();
}

QString FavoritesPanel::name() const {
    return m_name->text();
}

bool FavoritesPanel::showFolder(const QString& folder) {
    if (folder.isEmpty() || !isReadableFavouriteFolder(folder))
        return false;
    const QString clean = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const int drive = driveIndexOf(clean);
    m_drives->setCurrentIndex(drive);
    const QString root = QDir::fromNativeSeparators(m_drives->itemText(drive));
    m_model->setRootPath(root);
    m_folders->setRootIndex(m_model->index(root));
    const QModelIndex index = m_model->index(clean);
    m_folder = QDir::toNativeSeparators(clean);
    if (index == m_folders->rootIndex()) {
        // The drive root is no row of its own: choosing the drive chooses it.
        m_folders->setCurrentIndex(QModelIndex());
        folderChosen();
    } else {
        m_folders->setCurrentIndex(index);
        m_folders->expand(index);
        m_folders->scrollTo(index, QAbstractItemView::PositionAtCenter);
        m_keepFolderInView = true;
    }
    return true;
}

bool FavoritesPanel::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched != m_help && (type == QEvent::MouseButtonPress || type == QEvent::Wheel || type == QEvent::KeyPress))
        m_keepFolderInView = false;
    if (watched == m_help && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        emit helpRequested(favoriteHelpText());
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void FavoritesPanel::fillDrives() {
    fillDriveBox(m_drives);
}

int FavoritesPanel::driveIndexOf(const QString& folder) {
    const QString root = QDir::toNativeSeparators(QStorageInfo(folder).rootPath());
    int index = m_drives->findText(root);
    if (index < 0) {
        // A volume that was mounted after the list was filled.
        m_drives->addItem(root);
        index = m_drives->count() - 1;
    }
    return index;
}

void FavoritesPanel::chooseDrive(int index) {
    const QString root = m_drives->itemText(index);
    if (showFolder(root)) {
        showMessage(QString());
        return;
    }
    // No medium, no connection: the list goes back to the drive of the shown folder.
    showMessage(tr("Das Laufwerk \"%1\" kann nicht gelesen werden.").arg(root));
    m_drives->setCurrentIndex(driveIndexOf(QDir::fromNativeSeparators(m_folder)));
}

void FavoritesPanel::folderChosen() {
    const QModelIndex current = m_folders->currentIndex();
    if (current.isValid())
        m_folder = QDir::toNativeSeparators(m_model->filePath(current));
    if (!m_followingPath)
        m_path->setText(m_folder);
}

void FavoritesPanel::pathEdited(const QString& text) {
    if (text.isEmpty())
        return;
    // A path that cannot be reached leaves the browser where it is; the red text tells why.
    m_followingPath = true;
    showFolder(text);
    m_followingPath = false;
}

void FavoritesPanel::colourPath() {
    if (folderExists(m_path->text())) {
        // An empty palette drops the red and lets the entry follow the window's colours again.
        m_path->setPalette(QPalette());
        return;
    }
    QPalette palette = m_path->palette();
    palette.setColor(QPalette::Text, colorFromBgr(kMissingFolderColour));
    m_path->setPalette(palette);
}

void FavoritesPanel::showMessage(const QString& text) {
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

} // namespace quenfor
