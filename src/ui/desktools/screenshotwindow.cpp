#include "ui/desktools/screenshotwindow.h"

#include "common/fileexists.h"
#include "desktools/screenshotnames.h"
#include "desktools/screenshotsettings.h"
#include "desktools/shotrectangle.h"
#include "desktools/windowplacement.h"
#include "document/documentfile.h"
#include "ui/desktools/shotfieldvalidator.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/drivefolderchooser.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/statushints.h"

#include <QBuffer>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QLineEdit* makeNumberField(const QString& name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setValidator(new ShotFieldValidator(field));
    field->setMaximumWidth(field->fontMetrics().horizontalAdvance(u"0000000000"_s));
    return field;
}

} // namespace

ScreenshotWindow::ScreenshotWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(u"frmScreenShot"_s);
    setWindowTitle(tr("ScreenShot"));
    buildWidgets();

    const ScreenshotSettings settings = ScreenshotSettings::load();
    m_x->setText(settings.x);
    m_y->setText(settings.y);
    m_width->setText(settings.width);
    m_height->setText(settings.height);
    setTargetFolder(ScreenshotSettings::defaultFolder());
    resize(560, 560);
    placeWindow(settings.left, settings.top);
}

void ScreenshotWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    // A saved file's path and a note on the rectangle may need three lines.
    m_status->setMinimumHeight(3 * m_status->fontMetrics().lineSpacing() + 6);
    m_hints = new StatusHints(m_status, this);

    m_x = makeNumberField(u"X"_s, this);
    m_y = makeNumberField(u"Y"_s, this);
    m_width = makeNumberField(u"BREITE"_s, this);
    m_height = makeNumberField(u"HOEHE"_s, this);
    m_baseName = new QLineEdit(u"screenshot"_s, this);
    m_baseName->setObjectName(u"txt_filename"_s);
    m_count = new QLineEdit(u"0"_s, this);
    m_count->setObjectName(u"txt_CNT"_s);
    m_count->setValidator(new QIntValidator(0, 65535, m_count));
    m_count->setMaximumWidth(m_count->fontMetrics().horizontalAdvance(u"0000000000"_s));
    connect(m_count, &QLineEdit::editingFinished, this, &ScreenshotWindow::takeCounterFromField);
    m_folderLabel = new QLabel(this);
    m_folderLabel->setObjectName(u"lbl_ordner"_s);
    m_folderLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_folderLabel->setMinimumWidth(120);
    m_folderLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* chooseFolder = namedButton(u"cmdDir"_s, tr("Ordner..."), this);
    connect(chooseFolder, &QPushButton::clicked, this, &ScreenshotWindow::showFolderFrame);
    m_hints->add(chooseFolder, tr("Verzeichnis festlegen wo die ScreenShots gespeichert werden sollen."));

    auto* fields = new QGridLayout;
    fields->addWidget(new QLabel(tr("X (links)"), this), 0, 0);
    fields->addWidget(m_x, 0, 1);
    fields->addWidget(new QLabel(tr("Y (oben)"), this), 0, 2);
    fields->addWidget(m_y, 0, 3);
    fields->addWidget(new QLabel(tr("Breite"), this), 1, 0);
    fields->addWidget(m_width, 1, 1);
    fields->addWidget(new QLabel(tr("Höhe"), this), 1, 2);
    fields->addWidget(m_height, 1, 3);
    fields->addWidget(new QLabel(tr("Dateiname"), this), 2, 0);
    fields->addWidget(m_baseName, 2, 1);
    fields->addWidget(new QLabel(tr("Nr."), this), 2, 2);
    fields->addWidget(m_count, 2, 3);
    fields->setColumnStretch(4, 1);
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(new QLabel(tr("Ordner:"), this));
    folderRow->addWidget(m_folderLabel, 1);
    folderRow->addWidget(chooseFolder);

    auto* shootButton = namedButton(u"cmd_ScreenShot"_s, tr("ScreenShot"), this);
    connect(shootButton, &QPushButton::clicked, this, &ScreenshotWindow::shootRectangle);
    m_hints->add(shootButton, tr("Fotografiert den dargestellten Bildausschnitt. Die Bitmap Datei wird in den "
                                 "eingestellten Ordner abgelegt."));
    auto* wholeButton = namedButton(u"cmd_All"_s, tr("ganzer Bildschirm"), this);
    connect(wholeButton, &QPushButton::clicked, this, &ScreenshotWindow::shootWholeScreen);
    m_hints->add(wholeButton, tr("Fotografiert den Bildschirm ohne das ScreenShot-Tool. Die Bitmap Datei wird in "
                                 "den eingestellten Ordner abgelegt."));
    auto* clearButton = namedButton(u"clear"_s, tr("Vorschau leeren"), this);
    connect(clearButton, &QPushButton::clicked, this, &ScreenshotWindow::clearPreview);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(shootButton);
    buttons->addWidget(wholeButton);
    buttons->addStretch(1);
    buttons->addWidget(clearButton);

    m_image = new QLabel(this);
    m_image->setObjectName(u"Image1"_s);
    m_image->setAlignment(Qt::AlignCenter);
    m_image->setFrameShape(QFrame::StyledPanel);
    m_image->setMinimumSize(240, 150);
    m_image->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);

    m_showAgain = new QTimer(this);
    m_showAgain->setObjectName(u"Timer1"_s);
    m_showAgain->setSingleShot(true);
    m_showAgain->setInterval(kHiddenMs);
    connect(m_showAgain, &QTimer::timeout, this, &ScreenshotWindow::finishWholeScreen);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(folderRow);
    layout->addWidget(buildFolderFrame());
    layout->addLayout(buttons);
    layout->addWidget(m_image, 1);
    layout->addWidget(m_status);
}

QGroupBox* ScreenshotWindow::buildFolderFrame() {
    m_folderFrame = new QGroupBox(tr("Zielordner"), this);
    m_folderFrame->setObjectName(u"Frame6"_s);
    m_chooser = new DriveFolderChooser(m_folderFrame);
    m_chooser->driveBox()->setObjectName(u"Drive2"_s);
    m_chooser->folderTree()->setObjectName(u"Dir2"_s);
    m_chooser->folderTree()->setMinimumHeight(180);
    connect(m_chooser, &DriveFolderChooser::folderChosen, this, &ScreenshotWindow::showTargetFolder);
    connect(m_chooser, &DriveFolderChooser::driveUnavailable, this,
            [this] { m_status->setText(tr("Laufwerk nicht verfügbar !")); });
    auto* ok = namedButton(u"cmd_ok"_s, tr("OK"), m_folderFrame);
    connect(ok, &QPushButton::clicked, m_folderFrame, &QWidget::hide);

    auto* layout = new QVBoxLayout(m_folderFrame);
    layout->addWidget(m_chooser->driveBox());
    layout->addWidget(m_chooser->folderTree(), 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    m_folderFrame->hide();
    return m_folderFrame;
}

QString ScreenshotWindow::targetFolder() const {
    return m_chooser->folder();
}

void ScreenshotWindow::setTargetFolder(const QString& folder) {
    // The tree shows only a folder that exists; the shots go to the folder given all the same.
    m_chooser->keepFolder(folder);
    showTargetFolder(m_chooser->folder());
}

void ScreenshotWindow::showTargetFolder(const QString& folder) {
    m_folderLabel->setText(folder);
    m_folderLabel->setToolTip(folder);
}

void ScreenshotWindow::showFolderFrame() {
    m_folderFrame->show();
    QTreeView* tree = m_chooser->folderTree();
    tree->setFocus();
    // The tree can scroll only once the frame has its size.
    QTimer::singleShot(0, tree, [tree] {
        if (tree->currentIndex().isValid())
            tree->scrollTo(tree->currentIndex(), QAbstractItemView::PositionAtCenter);
    });
}

void ScreenshotWindow::placeWindow(int left, int top) {
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    move(visibleWindowPosition(QPoint(left, top), frameGeometry().size(), screens));
}

void ScreenshotWindow::takeCounterFromField() {
    bool ok = false;
    const uint value = m_count->text().toUInt(&ok);
    if (ok && value <= 65535)
        m_counter.setValue(quint16(value));
    m_count->setText(QString::number(m_counter.value()));
}

bool ScreenshotWindow::prepareShot(bool wholeScreen) {
    if (m_shooting)
        return false;
    const QString problem = shotBaseNameProblem(m_baseName->text());
    if (!problem.isEmpty()) {
        m_status->setText(problem);
        return false;
    }
    takeCounterFromField();
    const quint16 number = m_counter.next();
    m_count->setText(QString::number(number));
    m_lastFile = wholeScreen ? wholeScreenShotFileName(targetFolder(), m_baseName->text(), number)
                             : rectangleShotFileName(targetFolder(), m_baseName->text(), number);
    m_status->clear();
    return true;
}

void ScreenshotWindow::shootRectangle() {
    if (m_shooting)
        return;
    const ShotRectangle wanted = parseShotRectangle(m_x->text(), m_y->text(), m_width->text(), m_height->text());
    if (!wanted.error.isEmpty()) {
        m_status->setText(wanted.error);
        return;
    }
    if (!prepareShot(false))
        return;
    m_shooting = true;
    QScreen* aimedAt = QGuiApplication::screenAt(wanted.rect.topLeft());
    const DesktopPicture picture = pressPrintKey(aimedAt ? aimedAt : screen());
    // A missing folder is the user's way of taking shots only for the clipboard.
    if (!picture.isNull() && folderExists(targetFolder())) {
        const VisibleShot visible = visiblePartOfShot(wanted.rect, picture.area);
        if (visible.rect.isEmpty()) {
            m_status->setText(visible.note);
        } else {
            save(picture.part(visible.rect));
            if (!visible.note.isEmpty())
                m_status->setText(m_status->text() + u'\n' + visible.note);
        }
    }
    finishShot();
}

void ScreenshotWindow::shootWholeScreen() {
    if (!prepareShot(true))
        return;
    m_shooting = true;
    hide();
    m_showAgain->start();
}

void ScreenshotWindow::finishWholeScreen() {
    const DesktopPicture picture = pressPrintKey(screen());
    show();
    raise();
    activateWindow();
    if (!picture.isNull() && folderExists(targetFolder()))
        save(picture.pixmap);
    finishShot();
}

DesktopPicture ScreenshotWindow::pressPrintKey(QScreen* shown) {
    // Let the screen settle (hidden window, pressed button) before and the clipboard after.
    QCoreApplication::processEvents();
    const DesktopPicture picture = grabDesktop(shown ? shown : QGuiApplication::primaryScreen());
    if (picture.isNull()) {
        m_status->setText(tr("Der Bildschirm konnte nicht aufgenommen werden: Dieser Desktop erlaubt keine "
                             "Bildschirmfotos."));
        return picture;
    }
    QGuiApplication::clipboard()->setPixmap(picture.pixmap);
    showPreview(picture.pixmap);
    QCoreApplication::processEvents();
    return picture;
}

void ScreenshotWindow::save(const QPixmap& shot) {
    const QString shownPath = QDir::toNativeSeparators(m_lastFile);
    if (fileExists(m_lastFile) &&
        Dialogs::question(this, tr("Die Datei %1 gibt es schon. Überschreiben ?").arg(shownPath)) !=
            Dialogs::Answer::Yes) {
        m_status->setText(tr("Nicht gespeichert: %1").arg(shownPath));
        return;
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!shot.toImage().convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP")) {
        m_status->setText(tr("Die Bitmap für %1 konnte nicht erzeugt werden.").arg(shownPath));
        return;
    }
    if (const WriteResult written = writeBinaryFile(m_lastFile, bytes); !written.ok) {
        m_status->setText(written.error);
        return;
    }
    m_status->setText(tr("Gespeichert: %1").arg(shownPath));
    // The preview shows what the file holds.
    showPreview(QPixmap(m_lastFile));
}

void ScreenshotWindow::showPreview(const QPixmap& picture) {
    m_preview = picture;
    if (m_preview.isNull()) {
        m_image->clear();
        return;
    }
    const qreal ratio = devicePixelRatio();
    QPixmap scaled =
        m_preview.scaled(m_image->contentsRect().size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    m_image->setPixmap(scaled);
}

void ScreenshotWindow::clearPreview() {
    showPreview({});
}

void ScreenshotWindow::finishShot() {
    m_shooting = false;
    emit shotFinished();
}

void ScreenshotWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!m_preview.isNull())
        showPreview(m_preview);
}

void ScreenshotWindow::closeEvent(QCloseEvent* event) {
    if (m_showAgain->isActive()) {
        m_showAgain->stop();
        finishShot();
    }
    const ScreenshotSettings settings{m_x->text(), m_y->text(), m_height->text(), m_width->text(), y(), x()};
    if (!settings.save())
        Dialogs::information(this, tr("Die Einstellungen konnten nicht gespeichert werden."));
    QWidget::closeEvent(event);
}

} // namespace quenfor
