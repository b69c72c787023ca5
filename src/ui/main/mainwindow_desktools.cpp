// The desk tools, opened from the main window's tool menu and buttons.
#include "ui/main/mainwindow.h"

#include "desktools/texthandback.h"
#include "document/configdocument.h"
#include "ui/desktools/aboutdialog.h"
#include "ui/desktools/asciitablewindow.h"
#include "ui/desktools/colourboxwindow.h"
#include "ui/desktools/interpolationwindow.h"
#include "ui/desktools/netsendwindow.h"
#include "ui/desktools/pictureviewerwindow.h"
#include "ui/desktools/screenshotwindow.h"
#include "ui/desktools/shooterwindow.h"
#include "ui/desktools/skribbwindow.h"
#include "ui/desktools/worktimewindow.h"
#include "ui/knowledge/explanationpanel.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/toolwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace quenfor {

void MainWindow::connectDeskTools() {
    const auto on = [this](const QString& name, auto&& slot) {
        connect(m_menus.action(name), &QAction::triggered, this, slot);
    };
    // One line per tool: its menu entry opens its window.
    on(u"mnuTextEditor"_s, [this] { openTextEditor(); });
    on(u"mnuNetSend"_s, [this] { openMessenger(); });
    on(u"mnuPictureViewer"_s, [this] {
        showToolWindow(m_pictureViewer, [this] {
            PictureViewerLinks links;
            links.openMessenger = [this] { openMessenger(); };
            links.showMainWindow = [this] {
                showNormal();
                raise();
                activateWindow();
            };
            return new PictureViewerWindow(std::move(links), this);
        });
    });
    if (QAbstractButton* button = m_tools->button(u"cmd_Textedi"_s))
        connect(button, &QAbstractButton::clicked, this, &MainWindow::openTextEditor);

    on(u"mnuArbeitszeit"_s, [this] { showToolWindow(m_workTime, [this] { return new WorkTimeWindow(this); }); });
    on(u"mnuInterpolation"_s,
       [this] { showToolWindow(m_interpolation, [this] { return new InterpolationWindow(this); }); });
    on(u"mnuAscii"_s, [this] { showToolWindow(m_asciiTable, [this] { return new AsciiTableWindow(this); }); });
    on(u"mnuScreenShot"_s, [this] { showToolWindow(m_screenshot, [this] { return new ScreenshotWindow(this); }); });
    on(u"mnuShooter"_s, [this] { showToolWindow(m_shooter, [this] { return new ShooterWindow(this); }); });
    const auto colourBox = [this] {
        showToolWindow(m_colourBox, [this] {
            return new ColourBoxWindow(
                [this]() -> std::optional<QString> {
                    const int row = m_document->marked();
                    if (row < 0 || row >= m_document->count())
                        return std::nullopt;
                    return m_document->line(row);
                },
                this);
        });
    };
    on(u"mnuFarbBox"_s, colourBox);
    if (auto* button = findChild<QAbstractButton*>(u"cmd_Color"_s))
        connect(button, &QAbstractButton::clicked, this, colourBox);
    const auto about = [this] { showToolWindow(m_about, [this] { return new AboutDialog(this); }); };
    on(u"mnuUeber"_s, about);
    if (QAbstractButton* button = m_tools->button(u"Image10"_s))
        connect(button, &QAbstractButton::clicked, this, about);
}

void MainWindow::openTextEditor() {
    showToolWindow(m_textEditor, [this] {
        // A document of a million lines takes the text box a few seconds.
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        auto* editor = new SkribbWindow(m_document->lines().join(u"\r\n"_s), m_document->encoding(), this);
        QGuiApplication::restoreOverrideCursor();
        connect(editor, &SkribbWindow::explanationReady, this,
                [this](const QString& text) { explanationPanel()->showExplanation(text); });
        // The editor got the document's lines to work on: taking its text back replaces them, so no
        // line ends up twice. Lines the document gained meanwhile are kept, and the text is added.
        connect(editor, &SkribbWindow::linesHandedBack, this,
                [this, opened = m_document->lines()](const QStringList& lines) {
                    if (m_document->lines() == opened)
                        m_document->replaceAll(lines);
                    else
                        m_document->appendLines(lines);
                    setStatus(QString::fromUtf16(kTextTakenOver));
                });
        return editor;
    });
}

// The menu and the picture viewer's console share the one messenger window.
void MainWindow::openMessenger() {
    showToolWindow(m_netSend, [this] { return new NetSendWindow({}, this); });
}

} // namespace quenfor
