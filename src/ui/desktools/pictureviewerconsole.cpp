// The picture viewer's console: what each command of the table does in the window.
#include "ui/desktools/pictureviewerwindow.h"

#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "desktools/shellstart.h"
#include "desktools/viewerfiles.h"
#include "desktools/viewerschemes.h"
#include "desktools/viewertexts.h"
#include "settings/mainsettings.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/programexit.h"
#include "ui/desktools/qtpicturedecoder.h"

#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFrame>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Where the picture goes on the page: 20 by 10 twips from the printable area's corner.
constexpr int kPrintLeftTwips = 20;
constexpr int kPrintTopTwips = 10;
constexpr int kTwipsPerInch = 1440;

} // namespace

void PictureViewerWindow::runCommand(const QString& input) {
    // A name without a folder is looked for in the viewer's folder, where the user is looking.
    const auto isExistingFile = [this](const QString& text) { return fileExists(QDir(m_folder).filePath(text)); };
    for (const ConsoleStep& step : consoleSteps(input, isExistingFile)) {
        runStep(step, input);
        // Both end this window; nothing more may run on it.
        if (step.action == ConsoleAction::Exit || step.action == ConsoleAction::Quit)
            return;
    }
}

void PictureViewerWindow::runStep(const ConsoleStep& step, const QString& input) {
    switch (step.action) {
    case ConsoleAction::Save:
        savePicture();
        break;
    case ConsoleAction::OpenFile:
        showPictureFile(QDir(m_folder).filePath(input));
        break;
    case ConsoleAction::Terminal:
        startTerminalHere();
        break;
    case ConsoleAction::Print:
        printPicture();
        break;
    case ConsoleAction::List:
        writeList();
        break;
    case ConsoleAction::Delete:
        deleteSelected();
        break;
    case ConsoleAction::Exit:
        endWholeProgram();
        break;
    case ConsoleAction::Quit:
        if (m_links.showMainWindow)
            m_links.showMainWindow();
        close();
        break;
    case ConsoleAction::Author:
        Dialogs::information(this, authorText());
        break;
    case ConsoleAction::WebPage:
        openWebPage();
        break;
    case ConsoleAction::Colour:
        setScheme(step.schemeWord);
        break;
    case ConsoleAction::InstallFolder:
        setStatus(installFolderText(QDir::toNativeSeparators(QCoreApplication::applicationDirPath())));
        break;
    case ConsoleAction::Reset:
        resetWindow();
        break;
    case ConsoleAction::Types:
        setStatus(pictureTypesText());
        break;
    case ConsoleAction::Messenger:
        if (m_links.openMessenger)
            m_links.openMessenger();
        break;
    case ConsoleAction::Help:
        setStatus(consoleHelpLine());
        break;
    case ConsoleAction::Info:
        showInfo();
        break;
    case ConsoleAction::Date:
        setStatus(fileDateText(m_folder, selectedFile()));
        break;
    case ConsoleAction::Version:
        setStatus(viewerVersion());
        break;
    case ConsoleAction::Copy:
        copyPicture();
        break;
    case ConsoleAction::Paste:
        pastePicture();
        break;
    }
}

void PictureViewerWindow::savePicture() {
    if (m_picture.isNull()) {
        setStatus(QString::fromUtf16(kNoPictureShown));
        return;
    }
    QByteArray bitmap;
    QBuffer buffer(&bitmap);
    buffer.open(QIODevice::WriteOnly);
    m_picture.save(&buffer, "BMP");
    const ViewerFileResult saved = savePictureInFolder(m_folder, bitmap);
    setStatus(saved.text);
    if (saved.ok)
        refreshFiles();
}

void PictureViewerWindow::printPicture() {
    if (m_picture.isNull()) {
        setStatus(QString::fromUtf16(kNoPictureShown));
        return;
    }
    if (QPrinterInfo::defaultPrinter().isNull()) {
        setStatus(QString::fromUtf16(kNoDefaultPrinter));
        return;
    }
    setStatus(QString::fromUtf16(kPrintingText));
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    printer.setDocName(u"vistrel"_s);
    QPainter painter;
    if (!painter.begin(&printer)) {
        setStatus(QString::fromUtf16(kPrintFailed));
        return;
    }
    const double dotsPerTwip = double(printer.resolution()) / kTwipsPerInch;
    const QPointF corner(kPrintLeftTwips * dotsPerTwip, kPrintTopTwips * dotsPerTwip);
    // The picture at the size it has on the screen, but never beyond the page.
    const double scale = double(printer.resolution()) / qMax(1, logicalDpiX());
    QSizeF size = QSizeF(m_picture.size()) * scale;
    const QSizeF room = QSizeF(painter.viewport().size()) - QSizeF(corner.x(), corner.y());
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room, Qt::KeepAspectRatio);
    painter.drawPixmap(QRectF(corner, size), m_picture, QRectF(m_picture.rect()));
    if (!painter.end())
        setStatus(QString::fromUtf16(kPrintFailed));
}

void PictureViewerWindow::writeList() {
    const ViewerFileResult written = writeFileList(m_folder, files(), settingValue(Setting::Codepage));
    setStatus(written.text);
    if (!written.ok)
        return;
    refreshFiles();
    if (!openWithSystem(QUrl::fromLocalFile(written.path)))
        setStatus(listNotOpenedText(written.path));
}

void PictureViewerWindow::deleteSelected() {
    const ViewerFileResult deleted = deleteFileInFolder(m_folder, selectedFile());
    setStatus(deleted.text);
    if (deleted.ok)
        refreshFiles();
}

void PictureViewerWindow::resetWindow() {
    if (isMaximized() || isFullScreen())
        showNormal();
    resizeToDesignedSize();
    placeSplitter();
    if (const QScreen* shown = screen())
        move(shown->availableGeometry().left(), y());
    const QString selected = selectedFile();
    if (!selected.isEmpty())
        showPictureFile(joinFolderAndName(m_folder, selected));
    setScheme(standardViewerScheme().word);
    setStatus(QString::fromUtf16(kWindowResetText));
}

void PictureViewerWindow::showInfo() {
    m_info->show();
    setStatus(QString::fromUtf16(kShowingInfoText));
}

void PictureViewerWindow::copyPicture() {
    if (m_picture.isNull()) {
        setStatus(QString::fromUtf16(kNoPictureShown));
        return;
    }
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setPixmap(m_picture);
    setStatus(QString::fromUtf16(kCopiedText));
}

void PictureViewerWindow::pastePicture() {
    QtPictureDecoder decoder;
    // The loader takes an empty name as the clipboard.
    if (!loadPicture(QString(), false, decoder).isEmpty()) {
        setStatus(noClipboardPictureText(QGuiApplication::clipboard()->text()));
        return;
    }
    showPicture(decoder.picture());
    setStatus(QString::fromUtf16(kPastedText));
}

void PictureViewerWindow::startTerminalHere() {
    const bool started = m_links.startTerminal ? m_links.startTerminal(m_folder) : startTerminal(m_folder);
    if (!started)
        setStatus(QString::fromUtf16(kNoTerminal));
}

void PictureViewerWindow::openWebPage() {
    if (!openWithSystem(QUrl(viewerWebPage())))
        setStatus(webPageFailedText(viewerWebPage()));
}

bool PictureViewerWindow::openWithSystem(const QUrl& url) {
    return m_links.openUrl ? m_links.openUrl(url) : QDesktopServices::openUrl(url);
}

} // namespace quenfor
