#pragma once

#include "common/errors.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

namespace quenfor {

// Searches a folder, and unless told otherwise every folder below it, for entries whose names
// match one pattern and whose attributes lie within a mask; every hit goes to the owner through
// MatchFound. Before each subfolder the owner is asked through StopSearch whether to end that
// level. The search runs synchronously; after every directory entry it calls the progress
// handler, where a window processes its pending events, and it checks the cancel request.
//
// Rules the owners rely on:
// - After a search, sSearchpath holds the last subfolder entered, not the start folder.
// - A symbolic link to a folder is followed, but no folder is searched twice in one search, so a
//   link back up the tree or a loop of links ends. A folder that cannot be read yields nothing and
//   is listed in unreadableFolders().
// - Every accessor raises a QuenforError whose source and description name the member.
class cFindFile {
public:
    using MatchFound = std::function<void(const QString& fileName, const QString& searchDirectory,
                                          const QDateTime& creationTime, qint32 size, const QDateTime& lastAccessTime,
                                          const QDateTime& lastWriteTime, const QString& shortName)>;
    using StopSearch = std::function<void(bool& stop)>;
    // Called after every directory entry with the folder being read and the entries read so far.
    using Progress = std::function<void(const QString& folder, qint64 entriesRead)>;

    static constexpr qint32 defaultFileFlag = 439;
    // The subfolder list of one folder is 16 bits wide; more subfolders are an overflow error.
    static constexpr qsizetype maxSubfolders = 32767;

    cFindFile() = default;

    QString sSearchpath() const;
    void setSSearchpath(const QString& path); // error 5 for a path holding a NUL character

    QString sFileToFind() const;
    void setSFileToFind(const QString& pattern); // error 5 for a NUL character or a path separator

    bool sInclSubfolders() const;
    void setSInclSubfolders(bool include);

    qint32 sFileFlag() const;
    void setSFileFlag(qint64 mask); // error 6 (overflow) outside the signed 32-bit range

    void onMatchFound(MatchFound handler) { m_matchFound = std::move(handler); }
    void onStopSearch(StopSearch handler) { m_stopSearch = std::move(handler); }
    void onProgress(Progress handler) { m_progress = std::move(handler); }

    // Runs the search. Error 5 for an empty search path or a search started from inside an event;
    // error 6 for a folder with more than maxSubfolders subfolders. Hits reported before an error
    // stay reported.
    void sStartSearch();

    // Ends a running search after the current entry, all levels at once; safe from any thread.
    // The next sStartSearch clears the request.
    void requestCancel() { m_cancel.store(true, std::memory_order_relaxed); }
    bool wasCancelled() const { return m_cancelled; }

    // Folders of the last search whose entries could not be read, in the order met.
    const QStringList& unreadableFolders() const { return m_unreadable; }
    // The German reason behind the last error raised, for a message beside its description.
    const QString& lastFailure() const { return m_lastFailure; }

    enum class Access { Method, PropertyLet, PropertyGet };
    // The error a member raises, with the source and description the owners match on.
    static QuenforError memberError(const QString& member, Access access, int number);

private:
    template <typename Body> auto guarded(const QString& member, Access access, Body body) const -> decltype(body());
    void searchFolder(qint64& entriesRead);

    QString m_searchPath;
    QString m_fileToFind;
    bool m_inclSubfolders = true;
    qint32 m_fileFlag = defaultFileFlag;

    MatchFound m_matchFound;
    StopSearch m_stopSearch;
    Progress m_progress;

    std::atomic_bool m_cancel = false;
    bool m_cancelled = false;
    bool m_running = false;
    QSet<QString> m_searched; // identities of the folders searched in this search (folderidentity.h)
    QStringList m_unreadable;
    mutable QString m_lastFailure;
};

} // namespace quenfor
