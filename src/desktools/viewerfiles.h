#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace quenfor {

// The picture viewer's commands that touch files, each on the viewer's current folder. A file
// name is joined to the folder with a separator only when the folder does not end in one, so a
// root gives no doubled separator.

// The pictures of a folder as File1 lists them: files of the accepted types (no folders, no hidden
// files), sorted by name without regard to case.
QStringList pictureFilesIn(const QString& folder);

struct ViewerFileResult {
    bool ok = false;
    QString path; // the file written or deleted
    QString text; // what the console line shows: the success text or the German failure
};

// "save": the picture, already encoded as a bitmap, as "Zwischenablage.bmp" in the folder.
ViewerFileResult savePictureInFolder(const QString& folder, QByteArrayView bitmap);

// "list": the names one a line, ended by CR LF, to "Liste.txt" in the folder, in the code page;
// names the code page cannot hold make the list UTF-8 instead, so that no name is mangled.
ViewerFileResult writeFileList(const QString& folder, const QStringList& names, const QString& codepage);

// "del": deletes the named file of the folder.
ViewerFileResult deleteFileInFolder(const QString& folder, const QString& name);

// "date": the date and time of the named file's last change.
QString fileDateText(const QString& folder, const QString& name);

} // namespace quenfor
