// The panels of the main window: file chooser, folder browser, temporary directory, colours.
#include "ui/main/mainwindow.h"

#include "common/programfolders.h"
#include "document/configdocument.h"
#include "document/documentstorage.h"
#include "document/filefamily.h"
#include "settings/mainsettings.h"
#include "settings/settingsreset.h"
#include "settings/tempdircheck.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/main/colourpanel.h"
#include "ui/main/documentlistview.h"
#include "ui/main/entrylinepanel.h"
#include "ui/main/filechooserpanel.h"
#include "ui/main/folderpanel.h"
#include "ui/main/lintpanel.h"
#include "ui/main/tempdirpanel.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/applycolourscheme.h"
#include "ui/widgets/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {
constexpr int kStandardWidthTwips = 9525;
constexpr int kStandardHeightTwips = 8730;
} // namespace

void MainWindow::connectPanels() {
    auto on = [this](const QString& name, auto handler) {
        connect(m_menus.action(name), &QAction::triggered, this, handler);
    };
    on(u"mnuOeffnen"_s, [this] { showChooser(); });
    on(u"mnuSpeichernAls"_s, [this] { showChooser(); });
    on(u"mnuDateiBrowser"_s, [this] {
        m_folders->setFolder(m_chooser->folder());
        showCentre(m_folders);
    });
    on(u"mnuFarben"_s, [this] { m_colours->show(); });
    on(u"mnuTempVerzeichnis"_s, [this] { m_tempDir->show(); });

    connect(m_chooser, &FileChooserPanel::fileChosen, this, [this](const QString& path) {
        showCentre(m_list);
        m_folders->hide();
        openFile(path);
    });
    // Enter or "Speichern als..." onto a file that is already there replaces it only when the user
    // says so; saving the document's own file again needs no question.
    const auto mayWrite = [this](const QString& folder, const QString& name) {
        const QString target = chooserPath(folder, name);
        if (!QFileInfo::exists(target) || QFileInfo(target) == QFileInfo(m_document->fileName()))
            return true;
        const QString question =
            tr("Die Datei %1 gibt es schon. Soll sie überschrieben werden?").arg(QDir::toNativeSeparators(target));
        if (Dialogs::question(this, question) == Dialogs::Answer::Yes)
            return true;
        setStatus(tr("Nicht gespeichert: %1 bleibt, wie sie ist.").arg(QDir::toNativeSeparators(target)));
        return false;
    };
    connect(m_chooser, &FileChooserPanel::saveAsRequested, this,
            [this, mayWrite](const QString& folder, const QString& name) {
                if (!mayWrite(folder, name))
                    return;
                const StorageResult saved = saveDocumentAs(*m_document, folder, name);
                if (!saved.ok) {
                    Dialogs::information(this, saved.error);
                    return; // the chooser stays, so the user can pick another place
                }
                showFileLabel();
                showCentre(m_list);
                applyFamilyOf(m_document->fileName());
                setStatus(saved.status); // last: the family's own status must not hide the result
                if (!saved.warning.isEmpty())
                    Dialogs::information(this, saved.warning);
            });
    connect(m_chooser, &FileChooserPanel::saveCopyRequested, this,
            [this, mayWrite](const QString& folder, const QString& name) {
                if (name.isEmpty() || !mayWrite(folder, name))
                    return;
                const StorageResult saved = saveDocumentCopy(*m_document, folder, name);
                if (!saved.ok)
                    Dialogs::information(this, saved.error);
                else
                    setStatus(saved.status);
            });
    connect(m_chooser, &FileChooserPanel::closeRequested, this, [this] { showCentre(m_list); });
    connect(m_folders, &FolderPanel::closeRequested, this, [this] { showCentre(m_list); });
    connect(m_tempDir, &TempDirPanel::closeRequested, m_tempDir, &QWidget::hide);
    connect(m_tempDir, &TempDirPanel::tempDirChanged, this,
            [this](const QString& folder) { setStatus(u"temp Dir: "_s + folder); });
    const QString release = settingValue(Setting::Zielversion);
    m_tempDir->setTargetRelease(release);
    m_picker->setTargetRelease(release);
    connect(m_tempDir, &TempDirPanel::targetReleaseChanged, this, [this](const QString& name) {
        m_picker->setTargetRelease(name);
        setStatus(name.isEmpty() ? tr("Zielversion: keine") : tr("Zielversion: %1").arg(name));
        if (m_lintDock && m_lintDock->isVisible())
            m_lintPanel->check();
    });
    connect(m_colours, &ColourPanel::schemeChosen, this, &MainWindow::applyScheme);
    connect(m_colours, &ColourPanel::closeRequested, m_colours, &QWidget::hide);

    if (QAbstractButton* zoom = m_tools->button(u"img_zoom_all"_s))
        connect(zoom, &QAbstractButton::clicked, this, &MainWindow::zoomToStandardSize);
    if (QAbstractButton* reset = m_tools->button(u"cmd_RegDelTree"_s))
        connect(reset, &QAbstractButton::clicked, this, &MainWindow::resetSettings);
}

void MainWindow::showCentre(QWidget* page) {
    m_centre->setCurrentWidget(page);
    m_contextMenu->hide();
}

void MainWindow::showChooser() {
    const FileFamily family = fileFamilyOf(m_document->fileName());
    if (!family.defaultSaveName.isEmpty())
        m_chooser->setSaveName(family.defaultSaveName);
    showCentre(m_chooser);
}

void MainWindow::applyScheme(const QString& name) {
    if (applyColourScheme(m_list, name))
        m_colours->setSchemeName(name);
    m_colours->hide();
}

void MainWindow::checkStoredTempDir() {
    const QString stored = settingValue(Setting::TxtTempdir);
    m_tempDir->setText(stored);
    const TempDirCheck check = checkTempDir(stored);
    if (check.ok)
        return;
    // Without a working temporary folder the user is asked for one at once.
    if (auto* message = m_tempDir->findChild<QLabel*>(u"lbl_TempDirCheck"_s))
        message->setText(check.message);
    m_tempDir->show();
}

void MainWindow::zoomToStandardSize() {
    showNormal();
    resize(twipsToPixels(kStandardWidthTwips), twipsToPixels(kStandardHeightTwips));
}

void MainWindow::resetSettings() {
    if (Dialogs::question(this, resetQuestion()) != Dialogs::Answer::Yes)
        return;
    resetAllSettings(); // failures are not reported: a store that never existed is no error
}

} // namespace quenfor
