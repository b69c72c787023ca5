#include "cadfiles/purgetree.h"

#include "cadfiles/cleanpatterns.h"
#include "cadfiles/directorylisting.h"
#include "cadfiles/purgeanalysis.h"
#include "common/pathsplit.h"

#include <QDir>
#include <QHash>

using namespace Qt::StringLiterals;

namespace quenfor {

TreeRun::TreeRun(const QString& startFolder, const TreeOptions& options) : m_options(options) {
    const QString start = QDir::toNativeSeparators(startFolder);
    if (!listDirectory(start).exists) {
        m_result.error = u"Das Verzeichnis \"%1\" existiert nicht."_s.arg(start);
        m_finished = true;
        return;
    }
    m_result.folders.append(start);
    // The start folder may be reached through a link; from here on it must stay the same folder.
    const HeldFolder held(start, std::nullopt);
    m_identities.append(held.isHeld() ? std::optional<FolderIdentity>(held.identity()) : std::nullopt);
}

bool TreeRun::step() {
    if (m_finished)
        return false;
    if (!m_collected)
        collectStep();
    else
        processStep();
    return !m_finished;
}

void TreeRun::runToEnd(const std::function<bool()>& cancelled) {
    while (step()) {
        if (cancelled && cancelled())
            cancel();
    }
}

void TreeRun::cancel() {
    if (m_finished)
        return;
    m_result.cancelled = true;
    m_finished = true;
}

void TreeRun::collectStep() {
    if (m_next >= m_result.folders.size()) {
        m_collected = true;
        m_next = 0;
        return;
    }
    const QString folder = m_result.folders.at(m_next);
    const HeldFolder held(folder, m_identities.at(m_next));
    QList<FolderIdentity> identities;
    DirectoryEntries entries = held.list(&identities);
    if (held.wasSwapped())
        m_result.skipped.append(folder);
    else if (!entries.readable && listDirectory(folder).exists)
        m_result.unreadable.append(folder);
    m_collectedFiles.append(std::move(entries.files));
    if (m_options.recursive) {
        QHash<QString, FolderIdentity> identityOf;
        for (qsizetype i = 0; i < entries.folders.size(); ++i)
            identityOf.insert(entries.folders.at(i), identities.value(i));
        sortLikeFileList(entries.folders);
        for (const QString& name : std::as_const(entries.folders)) {
            m_result.folders.append(joinFolderAndName(folder, name));
            m_identities.append(identityOf.value(name));
        }
    }
    ++m_next;
}

QStringList TreeRun::filesToDelete(const QString& folder, const HeldFolder& held) {
    QStringList names;
    if (m_options.dryRun)
        names = std::move(m_collectedFiles[m_next]);
    else
        names = held.list(nullptr).files;
    sortLikeFileList(names);
    if (m_options.task == TreeTask::Purge)
        return purgeCandidates(folder, names);
    QStringList paths;
    for (const QString& name : CleaningPatterns(m_options.cleaningPatterns).filter(names))
        paths.append(joinFolderAndName(folder, name));
    return paths;
}

void TreeRun::processStep() {
    if (m_next >= m_result.folders.size()) {
        m_collectedFiles.clear();
        m_finished = true;
        return;
    }
    const QString folder = m_result.folders.at(m_next);
    // A folder removed or swapped since it was collected is skipped, not an error.
    const HeldFolder held(folder, m_identities.at(m_next));
    if (!m_options.dryRun && !held.isHeld()) {
        m_result.skipped.append(folder);
        ++m_next;
        return;
    }
    if (m_ask && !m_ask(folder)) {
        m_result.skipped.append(folder);
        ++m_next;
        return;
    }
    const QStringList files = filesToDelete(folder, held);
    m_result.listed.append(files);
    if (!m_options.dryRun && !files.isEmpty())
        deleteInFolder(folder, held, files);
    ++m_next;
}

void TreeRun::deleteInFolder(const QString& folder, const HeldFolder& held, const QStringList& paths) {
    const qsizetype prefix = joinFolderAndName(folder, u"").size();
    for (const QString& path : paths) {
        switch (held.removeFile(path.mid(prefix))) {
        case HeldFolder::Removal::Deleted:
            m_result.deletion.deleted.append(path);
            break;
        case HeldFolder::Removal::Vanished:
            m_result.deletion.vanished.append(path);
            break;
        case HeldFolder::Removal::Failed:
            m_result.deletion.failed.append(path);
            break;
        }
        if (m_afterEach)
            m_afterEach();
    }
}

QString TreeRun::progressText() const {
    if (!m_collected)
        return u"%1 Verzeichnisse gefunden"_s.arg(m_result.folders.size());
    return u"Verzeichnis %1 von %2"_s.arg(m_next).arg(m_result.folders.size());
}

QString treeSummary(const TreeResult& result, bool dryRun) {
    if (!result.error.isEmpty())
        return result.error;
    QString text = dryRun ? u"%1 Dateien würden gelöscht"_s.arg(result.listed.size()) : result.deletion.summary();
    text += u" (%1 Verzeichnisse)"_s.arg(result.folders.size());
    if (result.cancelled)
        text = u"Abgebrochen: "_s + text;
    if (!result.unreadable.isEmpty())
        text += u", %1 nicht lesbar"_s.arg(result.unreadable.size());
    return text;
}

} // namespace quenfor
