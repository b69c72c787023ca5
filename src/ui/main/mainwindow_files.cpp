// Start-up, closing, opening and saving in the main window.
#include "ui/main/mainwindow.h"

#include "common/fileexists.h"
#include "common/programfolders.h"
#include "document/configdocument.h"
#include "document/documentstorage.h"
#include "document/filefamily.h"
#include "settings/mainsettings.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/main/colourpanel.h"
#include "ui/main/documentprinter.h"
#include "ui/main/documentundo.h"
#include "ui/main/entrylinepanel.h"
#include "ui/main/filechooserpanel.h"
#include "ui/main/searchdialog.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/programexit.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStorageInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

EncodingChoice storedEncodingChoice() {
    return {settingValue(Setting::Codepage), false};
}

// The folder and drive keys follow every file that is opened.
void rememberFolderOf(const QString& path) {
    const QFileInfo info(path);
    setSettingValue(Setting::Dir1, QDir::toNativeSeparators(info.absolutePath()));
    setSettingValue(Setting::Drive1, QDir::toNativeSeparators(QStorageInfo(info.absolutePath()).rootPath()));
}

} // namespace

void MainWindow::connectMenus() {
    auto on = [this](const QString& name, auto handler) {
        connect(m_menus.action(name), &QAction::triggered, this, handler);
    };
    on(u"mnuSpeichern"_s, [this] { save(); });
    on(u"mnuDrucken"_s, [this] { printDocumentWithDialog(this, *m_document); });
    on(u"mnuSuchen"_s, [this] { showSearchDialog(); });
    on(u"mnuExit"_s, [] { endWholeProgram(); });
    on(u"mnuHilfedatei"_s, [this] {
        const QString path = m_picker->knowledgeBasePath();
        if (path.isEmpty() || !fileExists(path)) {
            Dialogs::information(this, u"Die Hilfedatei %1 existiert nicht."_s.arg(QDir::toNativeSeparators(path)));
            return;
        }
        if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
            setStatus(tr("Hilfedatei %1 wird geöffnet").arg(QDir::toNativeSeparators(path)));
        else
            Dialogs::information(this, tr("Die Hilfedatei %1 konnte nicht geöffnet werden: Das System kennt kein "
                                          "Programm für diese Datei.")
                                           .arg(QDir::toNativeSeparators(path)));
    });
    if (QAbstractButton* saveButton = m_tools->button(u"img_save"_s))
        connect(saveButton, &QAbstractButton::clicked, this, [this] { save(); });
    if (QAbstractButton* last = m_tools->button(u"cmd_last"_s))
        connect(last, &QAbstractButton::clicked, this, &MainWindow::openLastFile);
}

void MainWindow::startUp(const QStringList& arguments) {
    const QString scheme = settingValue(Setting::LblSchwarzweissblau);
    m_colours->setSchemeName(scheme);
    applyScheme(scheme);
    checkStoredTempDir();

    QString note;
    if (!arguments.isEmpty()) {
        QString path = arguments.first();
        // The program may be started with the path in double quotes; they are not part of it.
        if (path.size() >= 2 && path.startsWith(u'"') && path.endsWith(u'"'))
            path = path.mid(1, path.size() - 2);
        m_document->setFileName(QFileInfo(path).absoluteFilePath());
        showFileLabel();
        if (fileExists(path))
            note = openFile(path);
        else
            note =
                tr("Die Datei %1 gibt es noch nicht; \"Speichern\" legt sie an.").arg(QDir::toNativeSeparators(path));
    } else {
        const QString folder = settingValue(Setting::Dir1);
        if (folderExists(folder))
            m_chooser->setFolder(folder);
    }
    applyFamilyOf(m_document->fileName());
    // The file type rules may have replaced the status; the note still belongs after it.
    appendStatusNote(note);
}

QString MainWindow::openFile(const QString& path) {
    setStatus(QString::fromUtf16(kReadingStatus));
    const StorageResult opened = openDocument(*m_document, path, storedEncodingChoice());
    if (!opened.ok) {
        setStatus(QString());
        Dialogs::information(this, opened.error);
        return {};
    }
    m_undo->forgetHistory(); // another file: the steps of the last one do not apply
    rememberFolderOf(path);
    m_chooser->setFolder(QFileInfo(path).absolutePath());
    showFileLabel();
    applyFamilyOf(path);
    m_contextMenu->hide();
    setStatus(tr("%1 Zeilen gelesen").arg(m_document->count()));
    appendStatusNote(opened.hint);
    return opened.hint;
}

void MainWindow::appendStatusNote(const QString& note) {
    if (note.isEmpty() || status().endsWith(note))
        return;
    setStatus(status().isEmpty() ? note : status() + u" – "_s + note);
}

void MainWindow::openLastFile() {
    const QString last = settingValue(Setting::Label1);
    if (!fileExists(last)) {
        // The document keeps its lines; the user learns why nothing opened.
        setStatus(tr("Die zuletzt geöffnete Datei %1 gibt es nicht mehr.").arg(QDir::toNativeSeparators(last)));
        return;
    }
    openFile(last);
}

// Saves the document; when another program changed the file since it was read, the user decides
// whether that change may be overwritten.
StorageResult MainWindow::saveDocumentAsking() {
    StorageResult saved = saveDocument(*m_document, programFolder());
    if (saved.ok || !saved.changedOnDisk)
        return saved;
    const QString question = tr("Die Datei %1 wurde seit dem Lesen von einem anderen Programm geändert. "
                                "Trotzdem speichern? Dessen Änderungen gehen dann verloren.")
                                 .arg(QDir::toNativeSeparators(m_document->fileName()));
    if (Dialogs::question(this, question) != Dialogs::Answer::Yes) {
        saved.error = tr("Nicht gespeichert: Die Datei bleibt, wie das andere Programm sie geschrieben hat.");
        return saved;
    }
    return saveDocument(*m_document, programFolder(), OthersChanges::Overwrite);
}

void MainWindow::save() {
    const StorageResult saved = saveDocumentAsking();
    if (!saved.ok) {
        Dialogs::information(this, saved.error);
        return;
    }
    showFileLabel();
    setStatus(saved.status);
    if (!saved.warning.isEmpty())
        Dialogs::information(this, saved.warning);
}

void MainWindow::showSearchDialog() {
    if (!m_searchDialog) {
        m_searchDialog = new SearchDialog(m_document, this);
        m_searchDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_searchDialog->setKnowledgeBasePath(m_picker->knowledgeBasePath());
    m_searchDialog->setEncodingChoice(storedEncodingChoice());
    m_searchDialog->show();
    m_searchDialog->raise();
    m_searchDialog->activateWindow();
}

void MainWindow::showFileLabel() {
    m_fileLabel->setText(QDir::toNativeSeparators(m_document->fileName()));
}

void MainWindow::applyFamilyOf(const QString& fileName) {
    const FileFamily family = fileFamilyOf(fileName);
    m_menus.optionMenu->setEnabled(family.optionMenuEnabled);
    m_menus.optionMenu->menuAction()->setEnabled(family.optionMenuEnabled);
    m_pathOk->hide();
    m_pathNotValid->hide();
    const QString status = m_picker->applyFamily(family, programDataFolder());
    if (!status.isEmpty())
        setStatus(status);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // Whichever way the program is closed (menu, title bar, keys), the tools go first, as EXIT
    // does: the editor may still hand its text into this document, which is then offered for saving.
    if (!closeToolWindows()) {
        event->ignore();
        return;
    }
    if (!m_document->isEmpty() &&
        Dialogs::question(this, closeQuestion(m_document->fileName())) == Dialogs::Answer::Yes) {
        const StorageResult saved = saveDocumentAsking();
        if (!saved.ok) {
            // Closing now would lose the lines: the user decides again after reading why.
            Dialogs::information(this, saved.error);
            event->ignore();
            return;
        }
    }
    setSettingValue(Setting::Label1, QDir::toNativeSeparators(m_document->fileName()));
    setSettingValue(Setting::LblSchwarzweissblau, m_colours->schemeName());
    event->accept();
}

} // namespace quenfor
