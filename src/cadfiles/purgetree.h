#pragma once

#include "cadfiles/heldfolder.h"
#include "cadfiles/purgedelete.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace quenfor {

enum class TreeTask { Purge, Clean };

struct TreeOptions {
    TreeTask task = TreeTask::Purge;
    QString cleaningPatterns; // the clean's pattern list
    bool recursive = true;    // false: only the start folder
    bool dryRun = false;      // list what would be deleted, delete nothing
};

struct TreeResult {
    QStringList folders;    // the collected tree, start folder first, breadth first
    QStringList unreadable; // folders whose entries could not be read
    QStringList skipped;    // folders the user declined, or that vanished before their turn
    QStringList listed;     // files chosen for deletion, in folder order (with a dry run: would be)
    DeleteReport deletion;  // what the delete did (empty with a dry run)
    QString error;          // German, when the start folder is no folder
    bool cancelled = false;
};

// Purge or clean of a folder and, recursively, of every folder below it, done in small steps so a
// window can stay responsive between them and a command line can just loop.
//
// First the tree is collected: the start folder, then each collected folder's subfolders appended
// in file list order (breadth first). Hidden folders and linked folders are never entered, so the
// run stays inside the tree and a link loop cannot make it endless. Each folder is held open while
// it is listed and its files deleted, and must still be the folder that was found: one swapped for
// a link during the run is skipped, never followed. Then each folder in turn is
// analysed (purge) or matched against the patterns (clean); when an ask callback is set it is
// asked with the folder's path first and a false skips that folder. Each step handles one folder.
class TreeRun {
public:
    using Ask = std::function<bool(const QString& folder)>;

    TreeRun(const QString& startFolder, const TreeOptions& options);

    void setAsk(Ask ask) { m_ask = std::move(ask); }
    // Runs after every deleted file, for a window that wants to keep its events flowing.
    void setAfterEachFile(std::function<void()> afterEach) { m_afterEach = std::move(afterEach); }

    // Does one step of work; false once the run is finished (or cancelled).
    bool step();
    // Runs all steps; cancel, when given, is checked between steps.
    void runToEnd(const std::function<bool()>& cancelled = {});
    void cancel();

    bool isFinished() const { return m_finished; }
    bool isCollecting() const { return !m_collected; }
    qsizetype foldersFound() const { return m_result.folders.size(); }
    qsizetype foldersDone() const { return m_next; }
    // German progress text for a status line.
    QString progressText() const;
    const TreeResult& result() const { return m_result; }

private:
    void collectStep();
    void processStep();
    QStringList filesToDelete(const QString& folder, const HeldFolder& held);
    void deleteInFolder(const QString& folder, const HeldFolder& held, const QStringList& paths);

    TreeOptions m_options;
    TreeResult m_result;
    // The files each folder had when it was collected. A dry run uses them; a real run lists the
    // folder again right before deleting, so it decides on what is there now.
    QList<QStringList> m_collectedFiles;
    // Beside each collected folder: the folder its path led to when it was found.
    QList<std::optional<FolderIdentity>> m_identities;
    Ask m_ask;
    std::function<void()> m_afterEach;
    qsizetype m_next = 0; // next folder to enter (collecting) or to process
    bool m_collected = false;
    bool m_finished = false;
};

// The German summary of a finished run for the status line ("12 gelöscht", "abgebrochen ...").
QString treeSummary(const TreeResult& result, bool dryRun);

} // namespace quenfor
