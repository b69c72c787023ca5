#include "cadfiles/drawingfoldercheck.h"

#include "cadfiles/drawingmodellist.h"
#include "common/fileexists.h"
#include "common/pathsplit.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

QStringList drawingFilesIn(const QString& folder) {
    if (folder.isEmpty())
        return {};
    QDir dir(folder);
    dir.setNameFilters({u"*.drw*"_s});
    dir.setFilter(QDir::Files); // name filters match in any case, as on Windows
    dir.setSorting(QDir::Name | QDir::IgnoreCase);
    return dir.entryList();
}

DrawingFolderCheck checkDrawings(const QString& folder, const QStringList& files, const QString& codepage,
                                 const DrawingProgress& progress, const std::atomic_bool* cancel) {
    DrawingFolderCheck result;
    if (!folderExists(folder)) {
        result.error = QCoreApplication::translate("DrawingModel", "Das Verzeichnis \"%1\" gibt es nicht.")
                           .arg(QDir::toNativeSeparators(folder));
        return result;
    }
    result.listed = files.size();
    for (const QString& name : files) {
        if (cancel && cancel->load(std::memory_order_relaxed)) {
            result.cancelled = true;
            break;
        }
        const QString path = joinFolderAndName(folder, name);
        if (fileExists(path)) {
            DrawingCheck check = checkDrawingWithModelList(path, codepage);
            if (!check.matches) {
                result.differing.append(check.drawingName);
                result.differingModels.append(check.listedModels);
            }
            result.checks.append(std::move(check));
        }
        ++result.done;
        if (progress)
            progress(result.done, result.listed);
    }
    return result;
}

DrawingFolderCheck checkDrawingFolder(const QString& folder, const QString& codepage, const DrawingProgress& progress,
                                      const std::atomic_bool* cancel) {
    return checkDrawings(folder, drawingFilesIn(folder), codepage, progress, cancel);
}

QString filesCheckedText(qsizetype count) {
    return QString::number(count) + u" files checked"_s;
}

QString checkCancelledText(qsizetype done, qsizetype total) {
    return QCoreApplication::translate("DrawingModel", "Abgebrochen: %1 von %2 Zeichnungen geprüft.")
        .arg(done)
        .arg(total);
}

qsizetype firstFileStartingWith(const QStringList& files, const QString& entry) {
    const QString wanted = upperCaseKeepingLength(entry);
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (upperCaseKeepingLength(files[i]).startsWith(wanted))
            return i;
    }
    return -1;
}

} // namespace quenfor
