// The list, the entry line and the line operations of the main window.
#include "ui/main/mainwindow.h"

#include "common/programfolders.h"
#include "common/wholefile.h"
#include "document/cleanuptools.h"
#include "document/configdocument.h"
#include "document/documentfile.h"
#include "document/documentstorage.h"
#include "document/entrylinecheck.h"
#include "document/lineediting.h"
#include "document/mapkeysplitter.h"
#include "document/pathmarker.h"
#include "settings/mainsettings.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/main/documentlistview.h"
#include "ui/main/documentundo.h"
#include "ui/main/entrylinepanel.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/qtclipboard.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QUndoStack>

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

void MainWindow::connectEditing() {
    connect(m_document, &ConfigDocument::markedChanged, this, &MainWindow::showMarked);
    connect(m_list, &DocumentListView::lineClicked, this, &MainWindow::lineClicked);
    connect(m_list, &DocumentListView::rightClicked, this, &MainWindow::showContextMenu);
    connect(m_list, &DocumentListView::leftClicked, m_contextMenu, &QWidget::hide);
    connect(m_entry, &EntryLinePanel::textEdited, this, &MainWindow::entryChanged);
    connect(m_entry, &EntryLinePanel::returnPressed, this,
            [this] { setStatus(enterEntryLine(*m_document, m_entry->text())); });
    connect(m_entry, &EntryLinePanel::warningClicked, this, &MainWindow::splitMapkey);
}

void MainWindow::connectUndo() {
    m_undo = new DocumentUndo(m_document, this);
    QUndoStack* stack = m_undo->stack();
    QAction* undo = stack->createUndoAction(this, tr("Rückgängig"));
    undo->setObjectName(u"actRueckgaengig"_s);
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = stack->createRedoAction(this, tr("Wiederholen"));
    redo->setObjectName(u"actWiederholen"_s);
    redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence::Redo});
    // On the window, so the keys work wherever the focus is but in a text box with its own undo.
    addActions({undo, redo});
    connect(undo, &QAction::triggered, this, [this] { setStatus(tr("Letzte Änderung zurückgenommen")); });
    connect(redo, &QAction::triggered, this, [this] { setStatus(tr("Änderung wiederhergestellt")); });
    for (const auto& [name, bound] : {std::pair{u"cmd_undo"_s, undo}, std::pair{u"cmd_redo"_s, redo}}) {
        QAction* action = bound; // a lambda cannot capture a structured binding in every compiler
        QAbstractButton* button = m_tools->button(name);
        if (!button)
            continue;
        button->setEnabled(action->isEnabled());
        connect(action, &QAction::changed, button, [button, action] { button->setEnabled(action->isEnabled()); });
        connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    }
}

void MainWindow::connectTools() {
    auto onClick = [this](QAbstractButton* button, auto handler) {
        if (button)
            connect(button, &QAbstractButton::clicked, this, handler);
    };
    auto tool = [this](const QString& name) { return m_tools->button(name); };
    auto menuItem = [this](const QString& name) { return m_contextMenu->button(name); };
    static QtClipboard clipboard;

    onClick(tool(u"Image9"_s), [this] { setStatus(insertEntryLine(*m_document, m_entry->text())); });
    onClick(tool(u"img_comment"_s), [this] {
        m_entry->setText(u"! "_s);
        setStatus(insertCommentLine(*m_document));
    });
    const auto deleteSelected = [this] { setStatus(deleteSelectedLines(*m_document)); };
    onClick(tool(u"Image8"_s), deleteSelected);
    onClick(menuItem(u"cmd_delete"_s), deleteSelected);
    const auto deleteAll = [this] {
        if (Dialogs::question(this, QString::fromUtf16(kDeleteAllQuestion)) != Dialogs::Answer::Yes)
            return;
        deleteAllLines(*m_document);
        m_contextMenu->hide();
    };
    onClick(tool(u"cmd_delAll"_s), deleteAll);
    onClick(tool(u"img_up"_s), [this] { moveMarkedLineUp(*m_document); });
    onClick(tool(u"ontop"_s), [this] { moveMarkedLineToTop(*m_document); });
    const auto copy = [this] { setStatus(copySelectedLines(*m_document, clipboard)); };
    onClick(tool(u"copy"_s), copy);
    onClick(menuItem(u"cmd_copy"_s), copy);
    onClick(tool(u"cut"_s), [this] { setStatus(cutSelectedLines(*m_document, clipboard)); });
    onClick(menuItem(u"cmd_cut"_s), [this] {
        setStatus(cutSelectedLines(*m_document, clipboard));
        m_contextMenu->hide();
    });
    const auto paste = [this] { setStatus(pasteLines(*m_document, clipboard)); };
    onClick(tool(u"paste"_s), paste);
    onClick(menuItem(u"cmd_paste"_s), paste);
    onClick(menuItem(u"cmd_refresh"_s), [this] {
        m_document->clearSelection();
        m_document->setMarked(-1);
    });
    onClick(menuItem(u"cmd_quit"_s), [this] { m_contextMenu->hide(); });

    const auto blankLines = [this] { runWholeDocumentTool([this] { return removeBlankLines(*m_document); }); };
    const auto duplicates = [this] { runWholeDocumentTool([this] { return removeDuplicateLines(*m_document); }); };
    const auto sort = [this] { runWholeDocumentTool([this] { return sortLinesAlphabetically(*m_document); }); };
    const auto lower = [this] {
        runWholeDocumentTool([this] {
            lowerCaseLines(*m_document);
            return QString();
        });
    };
    onClick(tool(u"img_Leerzeilen"_s), blankLines);
    onClick(menuItem(u"cmd_blanklines"_s), blankLines);
    onClick(tool(u"img_doppelte"_s), duplicates);
    onClick(tool(u"img_alphabet"_s), sort);
    onClick(tool(u"img_grossklein"_s), lower);
    connect(m_menus.action(u"mnuLeerzeilen"_s), &QAction::triggered, this, blankLines);
    connect(m_menus.action(u"mnuDoppelte"_s), &QAction::triggered, this, duplicates);
    connect(m_menus.action(u"mnuAlphabet"_s), &QAction::triggered, this, sort);
    connect(m_menus.action(u"mnuGrossKlein"_s), &QAction::triggered, this, lower);
    connect(m_menus.action(u"mnuReparieren"_s), &QAction::triggered, this, &MainWindow::repairFragmentedFile);
    connect(m_menus.action(u"mnuAllesLoeschen"_s), &QAction::triggered, this, deleteAll);
}

void MainWindow::runWholeDocumentTool(const std::function<QString()>& tool) {
    const QString status = tool();
    if (!status.isEmpty())
        setStatus(status);
    showMarked(-1); // the list was rebuilt: no line is marked
}

void MainWindow::lineClicked(int row) {
    if (row < 0 || row >= m_document->count())
        return;
    setStatus(u"auswählen..."_s);
    m_document->setMarked(row);
    m_entry->setText(m_document->line(row));
    const PathMarker marker = pathMarkerFor(m_document->line(row));
    m_pathOk->setVisible(marker.state == PathMarker::State::Exists);
    m_pathNotValid->setVisible(marker.state == PathMarker::State::Missing);
    m_pathOk->setText(marker.text);
    m_pathNotValid->setText(marker.text);
    if (m_picker->explainCheck()->isChecked())
        explainEntryLine();
}

void MainWindow::entryChanged(const QString& text) {
    m_entry->showCheck(checkEntryLine(text, m_picker->configPickerEntries(), *m_document));
}

void MainWindow::splitMapkey() {
    const MapkeySplitResult result = splitMapkeyLine(*m_document, m_entry->text());
    if (result.refused) {
        Dialogs::information(this, result.message);
        return;
    }
    if (!result.placed)
        return;
    m_entry->setText(result.entryLine);
    setStatus(result.status);
}

void MainWindow::repairFragmentedFile() {
    const QString fileName = m_document->fileName();
    if (Dialogs::question(this, repairSaveQuestion(fileName)) == Dialogs::Answer::Yes)
        save();
    if (Dialogs::warning(this, QString::fromUtf16(kRepairWarning)) != Dialogs::Answer::Ok)
        return;
    const QString path = saveTargetFor(m_document->fileName(), programFolder());
    if (!QFileInfo(path).isFile()) {
        Dialogs::information(this, u"Die Datei %1 existiert nicht."_s.arg(path));
        return;
    }
    setStatus(u"Text wird defragmentiert..."_s);
    QString text = decodeText(readWholeFile(path), {settingValue(Setting::Codepage), false});
    const QStringList lines = repairFragmentedText(std::move(text), m_document->count());
    runWholeDocumentTool([&] {
        m_document->replaceAll(lines);
        return QString();
    });
}

} // namespace quenfor
