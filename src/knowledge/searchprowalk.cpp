#include "knowledge/searchprowalk.h"

#include "common/pathsplit.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// Progress is reported after this many entries, often enough for a window and cheap for the walk.
constexpr qsizetype kProgressStep = 64;

bool isCancelled(const std::atomic_bool* cancel) {
    return cancel && cancel->load(std::memory_order_relaxed);
}

// The subfolders of the current folder as full paths, ready to be appended (again).
struct Children {
    QStringList paths;
    std::vector<char> linked;
};

Children childrenOf(const QString& folder, QList<SubFolder> subfolders) {
    sortLikeDirectoryList(subfolders);
    Children children;
    children.paths.reserve(subfolders.size());
    children.linked.reserve(size_t(subfolders.size()));
    for (const SubFolder& sub : subfolders) {
        children.paths.append(joinFolderAndName(folder, sub.name));
        children.linked.push_back(sub.linked);
    }
    return children;
}

} // namespace

void sortLikeDirectoryList(QList<SubFolder>& folders) {
    struct Keyed {
        QString key;
        SubFolder folder;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(size_t(folders.size()));
    for (SubFolder& folder : folders)
        keyed.push_back({folder.name.toUpper(), std::move(folder)});
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) {
        if (const int c = QString::compare(a.key, b.key, Qt::CaseSensitive); c != 0)
            return c < 0;
        return QString::compare(a.folder.name, b.folder.name, Qt::CaseSensitive) < 0;
    });
    for (qsizetype i = 0; i < folders.size(); ++i)
        folders[i] = std::move(keyed[size_t(i)].folder);
}

SearchProWalk::SearchProWalk(const FolderLister& lister) : m_lister(lister) {}

SearchProWalkResult SearchProWalk::run(const QString& startFolder, const Progress& progress,
                                       const std::atomic_bool* cancel) const {
    SearchProWalkResult result;
    if (startFolder.isEmpty()) {
        result.error = u"Es ist kein Start-Verzeichnis gewählt."_s;
        return result;
    }
    // Full paths, because the CAD system reads search.pro from wherever it was started.
    const QString start = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(startFolder).absoluteFilePath()));
    FolderListing listing = m_lister.list(start);
    if (!listing.isFolder) {
        result.error = u"Der Ordner \"%1\" existiert nicht."_s.arg(start);
        return result;
    }
    if (!listing.readable) {
        result.error = u"Der Ordner \"%1\" kann nicht gelesen werden."_s.arg(start);
        return result;
    }

    const auto noteHidden = [&result](const QString& folder, const QStringList& names) {
        for (const QString& name : names)
            result.hidden.append(joinFolderAndName(folder, name));
    };
    noteHidden(start, listing.hidden);
    QStringList& list = result.folders;
    std::vector<char> linked; // parallel to list
    Children current = childrenOf(start, std::move(listing.subfolders));
    const auto appendCurrent = [&] {
        list.append(current.paths);
        linked.insert(linked.end(), current.linked.begin(), current.linked.end());
    };
    appendCurrent();

    for (qsizetype index = 0; index < list.size(); ++index) {
        if (isCancelled(cancel)) {
            result.cancelled = true;
            break;
        }
        if (progress && index % kProgressStep == 0)
            progress(list.size());
        const QString entry = list.at(index); // a copy: appending may move the list's storage
        if (linked[size_t(index)]) {
            if (m_lister.isFolder(entry))
                current = {};
        } else {
            listing = m_lister.list(entry);
            if (listing.isFolder) {
                if (!listing.readable)
                    result.unreadable.append(entry);
                noteHidden(entry, listing.hidden);
                current = childrenOf(entry, std::move(listing.subfolders));
            }
        }
        appendCurrent();
    }
    if (progress)
        progress(list.size());
    // A folder the walk had to list twice would otherwise name its hidden folders twice.
    result.hidden.removeDuplicates();
    return result;
}

} // namespace quenfor
