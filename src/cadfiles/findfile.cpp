#include "cadfiles/findfile.h"

#include "cadfiles/findattributes.h"
#include "cadfiles/findpattern.h"
#include "cadfiles/folderidentity.h"
#include "common/folderstatus.h"
#include "common/pathnames.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <new>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kInvalidArgument = 5;
constexpr int kOverflow = 6;
constexpr int kOutOfMemory = 7;

bool endsWithSeparator(const QString& path) {
    return path.endsWith(u'/') || path.endsWith(QDir::separator());
}

bool isPathSeparator(QChar c) {
    return c == u'/' || c == QDir::separator();
}

// Times as the finder reports them: the file system's UTC clock values, whole seconds, so that
// hits compare the same whatever the local time zone.
QDateTime wholeSecondsUtc(const QDateTime& time) {
    if (!time.isValid())
        return time;
    const QDateTime utc = time.toUTC();
    return utc.addMSecs(-utc.time().msec());
}

// Unsets the running mark however the search ends.
class RunningMark {
public:
    explicit RunningMark(bool& running) : m_running(running) { m_running = true; }
    ~RunningMark() { m_running = false; }
    RunningMark(const RunningMark&) = delete;
    RunningMark& operator=(const RunningMark&) = delete;

private:
    bool& m_running;
};

} // namespace

QuenforError cFindFile::memberError(const QString& member, Access access, int number) {
    QString kind;
    switch (access) {
    case Access::Method:
        kind = u" Method"_s;
        break;
    case Access::PropertyLet:
        kind = u" Property Let"_s;
        break;
    case Access::PropertyGet:
        kind = u" Property Get"_s;
        break;
    }
    const QString description = access == Access::Method ? u"Fehler bei "_s + member : u"Fehler bei "_s + member + kind;
    return {number, u"cFindFile:"_s + member + kind, description};
}

// Every accessor raises its failures again under its own name, keeping the error number, so an
// owner can tell which member failed.
template <typename Body>
auto cFindFile::guarded(const QString& member, Access access, Body body) const -> decltype(body()) {
    try {
        return body();
    } catch (const QuenforError& error) {
        m_lastFailure = error.description();
        throw memberError(member, access, error.number());
    } catch (const std::bad_alloc&) {
        m_lastFailure = u"Nicht genügend Speicher."_s;
        throw memberError(member, access, kOutOfMemory);
    } catch (const std::exception& error) {
        m_lastFailure = QString::fromLocal8Bit(error.what());
        throw memberError(member, access, kInvalidArgument);
    }
}

QString cFindFile::sSearchpath() const {
    return guarded(u"sSearchpath"_s, Access::PropertyGet, [&] { return m_searchPath; });
}

void cFindFile::setSSearchpath(const QString& path) {
    guarded(u"sSearchpath"_s, Access::PropertyLet, [&] {
        if (path.contains(QChar(0)))
            throw QuenforError(kInvalidArgument, u"cFindFile"_s, u"Der Suchpfad enthält ein NUL-Zeichen."_s);
        m_searchPath = path;
    });
}

QString cFindFile::sFileToFind() const {
    return guarded(u"sFileToFind"_s, Access::PropertyGet, [&] { return m_fileToFind; });
}

void cFindFile::setSFileToFind(const QString& pattern) {
    guarded(u"sFileToFind"_s, Access::PropertyLet, [&] {
        if (pattern.contains(QChar(0)))
            throw QuenforError(kInvalidArgument, u"cFindFile"_s, u"Das Suchmuster enthält ein NUL-Zeichen."_s);
        if (std::any_of(pattern.begin(), pattern.end(), isPathSeparator))
            throw QuenforError(
                kInvalidArgument, u"cFindFile"_s,
                u"Das Suchmuster \"%1\" enthält ein Pfadtrennzeichen; es gilt nur für Dateinamen."_s.arg(pattern));
        m_fileToFind = pattern;
    });
}

bool cFindFile::sInclSubfolders() const {
    return guarded(u"sInclSubfolders"_s, Access::PropertyGet, [&] { return m_inclSubfolders; });
}

void cFindFile::setSInclSubfolders(bool include) {
    guarded(u"sInclSubfolders"_s, Access::PropertyLet, [&] { m_inclSubfolders = include; });
}

qint32 cFindFile::sFileFlag() const {
    return guarded(u"sFileFlag"_s, Access::PropertyGet, [&] { return m_fileFlag; });
}

void cFindFile::setSFileFlag(qint64 mask) {
    guarded(u"sFileFlag"_s, Access::PropertyLet, [&] {
        if (mask < std::numeric_limits<qint32>::min() || mask > std::numeric_limits<qint32>::max())
            throw QuenforError(kOverflow, u"cFindFile"_s,
                               u"Überlauf: die Maske %1 liegt nicht zwischen %2 und %3."_s.arg(mask)
                                   .arg(std::numeric_limits<qint32>::min())
                                   .arg(std::numeric_limits<qint32>::max()));
        m_fileFlag = qint32(mask);
    });
}

void cFindFile::sStartSearch() {
    guarded(u"sStartSearch"_s, Access::Method, [&] {
        if (m_running)
            throw QuenforError(kInvalidArgument, u"cFindFile"_s,
                               u"Während einer Suche kann keine zweite Suche beginnen."_s);
        if (m_searchPath.isEmpty())
            throw QuenforError(kInvalidArgument, u"cFindFile"_s, u"Es ist kein Suchpfad angegeben."_s);
        const RunningMark running(m_running);
        m_cancel.store(false, std::memory_order_relaxed);
        m_cancelled = false;
        m_searched.clear();
        m_unreadable.clear();
        qint64 entriesRead = 0;
        searchFolder(entriesRead);
    });
}

void cFindFile::searchFolder(qint64& entriesRead) {
    QString path = m_searchPath;
    const qint32 flag = m_fileFlag;
    const FindPattern pattern(m_fileToFind);
    const bool inclSubfolders = m_inclSubfolders;
    if (!endsWithSeparator(path))
        path += QDir::separator();

    // A missing folder is no error: it simply has no hits.
    const QFileInfo folder(path);
    if (!folder.isDir()) {
        if (folderStatus(path) == FolderStatus::CannotTell)
            m_unreadable.append(path);
        return;
    }
    // Links may lead back up the tree; each real folder is read once, so every loop ends.
    const QString identity = folderIdentity(path);
    if (identity.isEmpty()) {
        m_unreadable.append(path);
        return;
    }
    if (m_searched.contains(identity))
        return;
    m_searched.insert(identity);

    QStringList subfolders;
    bool anyEntry = false;
    QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        anyEntry = true;
        const QFileInfo entry = entries.fileInfo();
        const QString name = entry.fileName();
        const bool isDirectory = entry.isDir();
        if (isDirectory) {
            if (subfolders.size() == maxSubfolders)
                throw QuenforError(
                    kOverflow, u"cFindFile"_s,
                    u"Überlauf: \"%1\" hat mehr als %2 Unterverzeichnisse."_s.arg(path).arg(maxSubfolders));
            subfolders.append(name);
        }
        if (pattern.matches(name) && acceptedByMask(findAttributes(entry), flag) && m_matchFound) {
            QDateTime created = entry.birthTime();
            if (!created.isValid()) // not every file system keeps one
                created = entry.lastModified();
            // Windows gives folders no size.
            const qint32 size = isDirectory ? 0 : findFileSize(entry.size());
#ifdef Q_OS_WIN
            // The 8.3 name the file system keeps for the entry, if it keeps one.
            const QString shortName = QFileInfo(shortPathName(entry.absoluteFilePath())).fileName();
#else
            const QString shortName; // Linux file systems keep no 8.3 names
#endif
            m_matchFound(name, path, wholeSecondsUtc(created), size, wholeSecondsUtc(entry.lastRead()),
                         wholeSecondsUtc(entry.lastModified()), shortName);
        }
        ++entriesRead;
        if (m_progress)
            m_progress(path, entriesRead);
        if (m_cancel.load(std::memory_order_relaxed)) {
            m_cancelled = true;
            return;
        }
    }
    if (!anyEntry && !folder.isReadable())
        m_unreadable.append(path);

    if (!inclSubfolders)
        return;
    for (const QString& subfolder : subfolders) {
        if (m_cancel.load(std::memory_order_relaxed)) {
            m_cancelled = true;
            return;
        }
        bool stop = false;
        if (m_stopSearch)
            m_stopSearch(stop);
        // A stop ends this level only; the levels above ask again before their next subfolder.
        if (stop)
            return;
        m_searchPath = path + subfolder;
        searchFolder(entriesRead);
        if (m_cancelled)
            return;
    }
}

} // namespace quenfor
