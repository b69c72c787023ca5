#include "cadfiles/purgetree.h"

#include "cadfiles/cleanpatterns.h"
#include "cadfiles/directorylisting.h"
#include "cadfiles/purgeanalysis.h"
#include "common/pathsplit.h"

#include <QDir>

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
    DirectoryEntries entries = listDirectory(folder);
    if (entries.exists && !entries.readable)
        m_result.unreadable.append(folder);
    m_collectedFiles.append(std::move(entries.files));
    if (m_options.recursive) {
        sortLikeFileList(entries.folders);
        for (const QString& name : std::as_const(entries.folders))
            m_result.folders.append(joinFolderAndName(folder, name));
    }
    ++m_next;
}

QStringList TreeRun::filesToDelete(const QString& folder) {
    QStringList names;
    if (m_options.dryRun) {
        names = std::move(m_collectedFiles[m_next]);
    } else {
        DirectoryEntries entries = listDirectory(folder);
        if (!entries.exists) {
            m_result.skipped.append(folder);
            return {};
        }
        names = std::move(entries.files);
    }
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
    // A folder removed since it was collected is skipped, not an error.
    if (!m_options.dryRun && !listDirectory(folder).exists) {
        m_result.skipped.append(folder);
        ++m_next;
        return;
    }
    if (m_ask && !m_ask(folder)) {
        m_result.skipped.append(folder);
        ++m_next;
        return;
    }
    const QStringList files = filesToDelete(folder);
    m_result.listed.append(files);
    if (!m_options.dryRun && !files.isEmpty()) {
        const DeleteReport report = deleteFiles(files, m_afterEach);
        m_result.deletion.deleted.append(report.deleted);
        m_result.deletion.vanished.append(report.vanished);
        m_result.deletion.failed.append(report.failed);
    }
    ++m_next;
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
