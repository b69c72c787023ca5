// The text editor's files: the open and save-as boxes, saving, printing, clearing and copying.
#include "ui/desktools/skribbwindow.h"

#include "desktools/editorfile.h"
#include "document/linesplit.h"
#include "settings/mainsettings.h"
#include "ui/desktools/skribbfilebox.h"
#include "ui/main/documentprinter.h"
#include "ui/widgets/dialogs.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace quenfor {

void SkribbWindow::showOpenBox() {
    m_saveAsBox->hide();
    m_openBox->showOverParent(boxPlace(m_openBox, false));
}

void SkribbWindow::showSaveAsBox() {
    m_openBox->hide();
    m_saveAsBox->showOverParent(boxPlace(m_saveAsBox, true));
}

void SkribbWindow::rememberFolder(const QString& folder, const QString& drive) {
    m_folder = folder;
    m_drive = drive;
}

void SkribbWindow::loadChosen(const QString& folder, const QString& name) {
    if (name.isEmpty()) {
        Dialogs::information(this, QString::fromUtf16(kEditorChooseFileFirst));
        return;
    }
    openFile(QDir(folder).filePath(name));
}

void SkribbWindow::openFile(const QString& path) {
    const EditorFile file = readEditorFile(path, {settingValue(Setting::Codepage), false});
    if (!file.ok) {
        Dialogs::information(this, file.error);
        return;
    }
    setText(file.text);
    m_encoding = file.encoding;
    m_fileLabel->setText(QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()));
    m_openBox->hide();
    rememberFolder(m_openBox->folder(), m_openBox->drive());
    storeSettings();
    refresh();
}

void SkribbWindow::save() {
    const EditorSave saved = saveEditorText(m_fileLabel->text(), text(), m_encoding);
    m_fileLabel->setText(saved.path);
    switch (saved.outcome) {
    case EditorSave::Outcome::Saved:
        setStatus(saved.status);
        if (!saved.warning.isEmpty())
            Dialogs::information(this, saved.warning);
        break;
    case EditorSave::Outcome::NeedsName:
        Dialogs::information(this, saved.message);
        showSaveAsBox();
        break;
    case EditorSave::Outcome::Failed:
        Dialogs::information(this, saved.message);
        break;
    }
}

void SkribbWindow::saveAs(const QString& folder, const QString& name) {
    // The name asked about is the name written: blanks around it are no part of it.
    const QString trimmed = name.trimmed();
    const QString target = QDir(folder).filePath(trimmed);
    if (!trimmed.isEmpty() && QFileInfo(target).isFile() &&
        Dialogs::question(this, replaceFileQuestion(target)) != Dialogs::Answer::Yes)
        return;
    const EditorSave saved = saveEditorTextAs(folder, trimmed, text(), m_encoding);
    if (saved.outcome != EditorSave::Outcome::Saved) {
        Dialogs::information(this, saved.message);
        return;
    }
    m_fileLabel->setText(saved.path);
    m_saveAsBox->hide();
    setStatus(saved.status);
    if (!saved.warning.isEmpty())
        Dialogs::information(this, saved.warning);
}

void SkribbWindow::print() {
    if (Dialogs::question(this, u"Datei jetzt ausdrucken ?"_s) != Dialogs::Answer::Yes)
        return;
    const QString title = m_fileLabel->text().isEmpty() ? windowTitle() : m_fileLabel->text();
    printLinesOnDefaultPrinter(this, splitLines(text()), title);
}

void SkribbWindow::clearText() {
    // Through the cursor, so that Ctrl+Z brings the text back.
    QTextCursor cursor(m_text->document());
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
}

void SkribbWindow::copyText() {
    if (m_text->textCursor().hasSelection())
        m_text->copy();
    else
        QGuiApplication::clipboard()->setText(text());
}

} // namespace quenfor
