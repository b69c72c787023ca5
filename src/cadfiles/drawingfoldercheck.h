#pragma once

#include "cadfiles/drawingmodel.h"

#include <QList>
#include <QStringList>

#include <atomic>
#include <functional>

namespace quenfor {

// The drawings of a folder as the checker lists them: the file names matching "*.drw*" in any case
// (so versioned "x.drw.3" counts), files only, sorted by name ignoring case. Empty for a missing
// or unreadable folder.
QStringList drawingFilesIn(const QString& folder);

struct DrawingFolderCheck {
    QList<DrawingCheck> checks;         // one per drawing that still existed, in list order, model lists read
    QStringList differing;              // drawing names (upper case, up to the first dot) without a match
    QList<QStringList> differingModels; // for each entry of differing: the models its drawing lists
    qsizetype listed = 0;               // drawings listed when the check began
    qsizetype done = 0;                 // drawings handled (checked or skipped as gone) until the end or cancel
    bool cancelled = false;
    QString error; // German, when the folder does not exist
};

// Checks every drawing of files (names inside folder) in turn; files gone since they were listed
// are skipped. Safe in a worker thread: progress gets (done, total) after every file, and cancel
// may be set from any thread; it is checked before every file.
using DrawingProgress = std::function<void(qsizetype done, qsizetype total)>;
DrawingFolderCheck checkDrawings(const QString& folder, const QStringList& files, const QString& codepage,
                                 const DrawingProgress& progress = {}, const std::atomic_bool* cancel = nullptr);

// The same for every drawing the folder holds now.
DrawingFolderCheck checkDrawingFolder(const QString& folder, const QString& codepage,
                                      const DrawingProgress& progress = {}, const std::atomic_bool* cancel = nullptr);

// The closing status of a folder check: the number of files and " files checked".
QString filesCheckedText(qsizetype count);
// The status after a cancel.
QString checkCancelledText(qsizetype done, qsizetype total);

// The first of files whose name begins with entry, both compared in upper case; -1 when none does.
qsizetype firstFileStartingWith(const QStringList& files, const QString& entry);

} // namespace quenfor
