#include "ui/knowledge/favoritespanel.h"

#include "ui/main/entrylinepanel.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include "common/fileexists.h"
#include "knowledge/favorites.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

FavoritesPanel::FavoritesPanel(QWidget* parent)
    : QFrame(parent), m_chooser(new DriveFolderChooser(this, DriveFolderChooser::View::OneDrive)),
      m_path(new QLineEdit(this)), m_name(new QLineEdit(this)), m_add(new QPushButton(tr("Favorit hinzufügen"), this)),
      m_close(new QPushButton(tr("Schließen"), this)), m_help(new QLabel(tr("Was ist ein Favorit?"), this)),
      m_message(new QLabel(this)) {
    setObjectName(u"Favoriten"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    QComboBox* drives = m_chooser->driveBox();
    QTreeView* folders = m_chooser->folderTree();
    drives->setObjectName(u"Drive_Favo"_s);
    folders->setObjectName(u"Dir_Favo"_s);
    m_path->setObjectName(u"txt_Favo"_s);
    m_name->setObjectName(u"txt_Favoname"_s);
    m_add->setObjectName(u"cmd_favo"_s);
    m_close->setObjectName(u"cmd_favoExit"_s);
    m_help->setObjectName(u"lbl_favohelp"_s);
    m_message->setObjectName(u"lbl_favomeldung"_s);

    folders->setMinimumSize(260, 6 * fontMetrics().lineSpacing());

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
    driveLabel->setBuddy(drives);
    driveRow->addWidget(driveLabel);
    driveRow->addWidget(drives, 1);

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
    layout->addWidget(folders, 1);
    layout->addWidget(pathLabel);
    layout->addWidget(m_path);
    layout->addWidget(nameLabel);
    layout->addWidget(m_name);
    layout->addLayout(buttonRow);
    layout->addWidget(m_message);

    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &FavoritesPanel::folderChosen);
    // No medium, no connection: the chooser puts the box back on the drive of the shown folder.
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this, [this](const QString& root) {
        showMessage(tr("Das Laufwerk \"%1\" kann nicht gelesen werden.").arg(root));
    });
    connect(m_path, &QLineEdit::textChanged, this, &FavoritesPanel::colourPath);
    connect(m_path, &QLineEdit::textEdited, this, &FavoritesPanel::pathEdited);
    connect(m_add, &QPushButton::clicked, this,
            [this] { emit lineToDocument(favoriteLine(m_path->text(), m_name->text())); });

    // The browser starts in the home folder; the fields stay empty until the user chooses.
    m_followingPath = true;
    showFolder(QDir::homePath());
    m_followingPath = false;
    colourPath();
}

void FavoritesPanel::registerHints(StatusHints& hints) {
    hints.add(m_chooser->driveBox(), tr("Laufwerk des Favoritenverzeichnisses wählen"));
    hints.add(m_chooser->folderTree(), tr("Verzeichnis wählen, das der Dateibrowser als Favorit zeigen soll"));
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
    return m_chooser->setCurrentFolder(folder);
}

bool FavoritesPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_help && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        emit helpRequested(favoriteHelpText());
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void FavoritesPanel::folderChosen(const QString& folder) {
    showMessage(QString());
    if (!m_followingPath)
        m_path->setText(folder);
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
