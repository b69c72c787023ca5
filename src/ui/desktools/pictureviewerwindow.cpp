#include "ui/desktools/pictureviewerwindow.h"

#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "desktools/pictureloader.h"
#include "desktools/viewerfiles.h"
#include "desktools/viewerschemes.h"
#include "desktools/viewersettings.h"
#include "desktools/viewertexts.h"
#include "settings/defaultfolders.h"
#include "settings/storeddrive.h"
#include "ui/desktools/emptyondoubleclick.h"
#include "ui/desktools/picturescroller.h"
#include "ui/desktools/qtpicturedecoder.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kBrowserWidth = 210;

QColor resolved(const ViewerColour& colour) {
    const QPalette system = QApplication::palette();
    switch (colour.source) {
    case ViewerColour::Source::SystemWindow:
        return system.color(QPalette::Active, QPalette::Base);
    case ViewerColour::Source::SystemHighlight:
        return system.color(QPalette::Active, QPalette::Highlight);
    case ViewerColour::Source::SystemButtonFace:
        return system.color(QPalette::Active, QPalette::Button);
    case ViewerColour::Source::Fixed:
        break;
    }
    return QColor(colour.rgb.red, colour.rgb.green, colour.rgb.blue);
}

void setColours(QWidget* widget, QPalette::ColorRole backgroundRole, QPalette::ColorRole textRole,
                const QColor& background, const QColor& text) {
    QPalette palette = widget->palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, backgroundRole, background);
        palette.setColor(group, textRole, text);
    }
    widget->setPalette(palette);
}

} // namespace

PictureViewerWindow::PictureViewerWindow(PictureViewerLinks links, QWidget* parent)
    : QWidget(parent, Qt::Window), m_links(std::move(links)) {
    setObjectName(u"vistrel"_s);
    setWindowTitle(tr("quenfor Bildbetrachter"));
    buildWidgets();
    restoreSettings();
    resizeToDesignedSize();
    placeSplitter();
}

PictureViewerWindow::~PictureViewerWindow() = default;

void PictureViewerWindow::buildWidgets() {
    m_chooser = new DriveFolderChooser(this);
    // A long mount path must not widen the browser at the picture's cost; the list shows it whole.
    m_chooser->driveBox()->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_chooser->driveBox()->setMinimumContentsLength(8);
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &PictureViewerWindow::showFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this,
            [this](const QString& root) { setStatus(driveNotAvailableText(root)); });

    m_files = new QListWidget(this);
    m_files->setObjectName(u"File1"_s);
    m_files->setUniformItemSizes(true);
    connect(m_files, &QListWidget::currentRowChanged, this, &PictureViewerWindow::fileChosen);

    auto* browser = new QWidget(this);
    auto* browserLayout = new QVBoxLayout(browser);
    browserLayout->setContentsMargins(0, 0, 0, 0);
    browserLayout->addWidget(m_chooser->driveBox());
    browserLayout->addWidget(m_chooser->folderTree(), 3);
    browserLayout->addWidget(m_files, 2);

    m_image = new QLabel;
    m_image->setObjectName(u"Image1"_s);
    m_pictureArea = new QScrollArea(this);
    m_pictureArea->setObjectName(u"picFrame"_s);
    m_pictureArea->setWidget(m_image);
    m_pictureArea->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_pictureArea->viewport()->setAutoFillBackground(true);
    m_pictureArea->verticalScrollBar()->setObjectName(u"VScroll"_s);
    m_pictureArea->horizontalScrollBar()->setObjectName(u"HScroll"_s);
    auto* scroller = new PictureScroller(m_pictureArea);
    scroller->watchWheel(this);

    m_info = new QFrame(this);
    m_info->setObjectName(u"frmInfo"_s);
    m_info->setFrameShape(QFrame::StyledPanel);
    m_info->setAutoFillBackground(true);
    auto* infoText = new QLabel(viewerInfoText(), m_info);
    infoText->setObjectName(u"lblInfo"_s);
    infoText->setWordWrap(true);
    auto* closeInfo = new QPushButton(QString::fromUtf16(kInfoCloseCaption), m_info);
    closeInfo->setObjectName(u"cmd_info"_s);
    closeInfo->setAutoDefault(false);
    connect(closeInfo, &QPushButton::clicked, m_info, &QWidget::hide);
    auto* infoLayout = new QHBoxLayout(m_info);
    infoLayout->addWidget(infoText, 1);
    infoLayout->addWidget(closeInfo, 0, Qt::AlignTop);
    m_info->hide();

    auto* viewer = new QWidget(this);
    auto* viewerLayout = new QVBoxLayout(viewer);
    viewerLayout->setContentsMargins(0, 0, 0, 0);
    viewerLayout->addWidget(m_info);
    viewerLayout->addWidget(m_pictureArea, 1);

    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->addWidget(browser);
    m_splitter->addWidget(viewer);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);

    m_console = new QLineEdit(QString::fromUtf16(kConsoleStartHint), this);
    m_console->setObjectName(u"lblstatus"_s);
    emptyOnDoubleClick(m_console);
    connect(m_console, &QLineEdit::returnPressed, this, [this] {
        if (!m_console->text().isEmpty())
            runCommand(m_console->text());
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_console);
}

void PictureViewerWindow::restoreSettings() {
    const PictureViewerSettings stored = loadPictureViewerSettings();
    setScheme(viewerScheme(stored.scheme) ? stored.scheme : standardViewerScheme().word);
    if (folderExists(stored.folder))
        setCurrentFolder(stored.folder);
    else if (folderExists(driveRootOf(stored.drive)))
        setCurrentFolder(driveRootOf(stored.drive));
    else
        setCurrentFolder(defaultFolder());
    // A missing stored folder is no news to the user; the console starts with its hint.
    m_console->setText(QString::fromUtf16(kConsoleStartHint));
}

void PictureViewerWindow::closeEvent(QCloseEvent* event) {
    storePictureViewerSettings({m_schemeWord, m_folder, storedDriveOf(m_chooser->driveBox()->currentText())});
    QWidget::closeEvent(event);
}

bool PictureViewerWindow::setCurrentFolder(const QString& folder) {
    if (m_chooser->setCurrentFolder(folder))
        return true;
    setStatus(folderMissingText(QDir::toNativeSeparators(folder)));
    return false;
}

void PictureViewerWindow::showFolder(const QString& folder) {
    m_folder = folder;
    refreshFiles();
}

void PictureViewerWindow::refreshFiles() {
    // Refreshing after save, list or del keeps the chosen file chosen without loading it again.
    const QString selected = selectedFile();
    const QSignalBlocker blocker(m_files);
    m_files->clear();
    m_files->addItems(pictureFilesIn(m_folder));
    const QList<QListWidgetItem*> found = m_files->findItems(selected, Qt::MatchExactly);
    if (!selected.isEmpty() && !found.isEmpty())
        m_files->setCurrentItem(found.first());
}

QStringList PictureViewerWindow::files() const {
    QStringList names;
    names.reserve(m_files->count());
    for (int i = 0; i < m_files->count(); ++i)
        names.append(m_files->item(i)->text());
    return names;
}

QString PictureViewerWindow::selectedFile() const {
    const QListWidgetItem* item = m_files->currentItem();
    return item ? item->text() : QString();
}

void PictureViewerWindow::selectFile(const QString& name) {
    const QList<QListWidgetItem*> found = m_files->findItems(name, Qt::MatchExactly);
    if (!found.isEmpty())
        m_files->setCurrentItem(found.first());
}

void PictureViewerWindow::fileChosen(int row) {
    if (row < 0)
        return;
    if (!isMaximized() && !isFullScreen())
        resizeToDesignedSize();
    showPictureFile(joinFolderAndName(m_folder, m_files->item(row)->text()));
}

bool PictureViewerWindow::showPictureFile(const QString& path) {
    QtPictureDecoder decoder;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString error = loadPicture(path, false, decoder);
    QApplication::restoreOverrideCursor();
    if (!error.isEmpty()) {
        setStatus(error);
        return false;
    }
    showPicture(decoder.picture());
    setStatus(pictureShownText(path.trimmed(), m_picture.width(), m_picture.height()));
    return true;
}

void PictureViewerWindow::showPicture(const QPixmap& picture) {
    m_picture = picture;
    m_image->setPixmap(m_picture);
    m_image->adjustSize();
}

QString PictureViewerWindow::statusText() const {
    return m_console->text();
}

void PictureViewerWindow::setStatus(const QString& text) {
    // The console is one line; the loader's two-line messages stand side by side.
    QString line = text;
    line.replace(u"\r\n"_s, u" – "_s);
    line.replace(u'\n', u' ');
    m_console->setText(line);
    m_console->setCursorPosition(0);
    // A line longer than the window (the command overview) can still be read whole.
    m_console->setToolTip(line);
}

void PictureViewerWindow::setScheme(const QString& word) {
    const std::optional<ViewerScheme> scheme = viewerScheme(word);
    if (!scheme)
        return;
    m_schemeWord = scheme->word;
    applyScheme(*scheme);
}

void PictureViewerWindow::applyScheme(const ViewerScheme& scheme) {
    // The window's own background is painted rather than set in its palette, which every child
    // would inherit: scroll bars and the folder tree keep the system's look.
    m_background = resolved(scheme.background);
    const QColor text = resolved(scheme.text);
    setColours(m_pictureArea->viewport(), QPalette::Window, QPalette::WindowText, m_background, text);
    setColours(m_console, QPalette::Base, QPalette::Text, m_background, text);
    setColours(m_info, QPalette::Window, QPalette::WindowText, m_background, text);
    update();
}

QColor PictureViewerWindow::backgroundColour() const {
    return m_background;
}

void PictureViewerWindow::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), m_background);
    QWidget::paintEvent(event);
}

void PictureViewerWindow::resizeToDesignedSize() {
    resize(twipsToPixels(kViewerWidthTwips), twipsToPixels(kViewerHeightTwips));
}

void PictureViewerWindow::placeSplitter() {
    // The picture gets the room; the browser keeps what it needs to show names. The splitter must
    // have its new width first, also while the window is not shown yet.
    layout()->activate();
    m_splitter->setSizes({kBrowserWidth, m_splitter->width() - kBrowserWidth});
}

} // namespace quenfor
