#include "desktools/viewerfiles.h"

#include "cadfiles/filechangetext.h"
#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "desktools/picturetypes.h"
#include "document/documentfile.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kNoFileSelected = u"Keine Datei ausgewählt."_s;

} // namespace

QStringList pictureFilesIn(const QString& folder) {
    QStringList pictures;
    if (folder.isEmpty())
        return pictures;
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& name : names) {
        if (isPictureFileName(name))
            pictures.append(name);
    }
    return pictures;
}

ViewerFileResult savePictureInFolder(const QString& folder, QByteArrayView bitmap) {
    ViewerFileResult result;
    result.path = joinFolderAndName(folder, u"Zwischenablage.bmp");
    const WriteResult written = writeBinaryFile(result.path, bitmap);
    result.ok = written.ok;
    result.text = written.ok ? u"Bild als "_s + result.path + u" gespeichert"_s : written.error;
    return result;
}

ViewerFileResult writeFileList(const QString& folder, const QStringList& names, const QString& codepage) {
    ViewerFileResult result;
    result.path = joinFolderAndName(folder, u"Liste.txt");
    WriteResult written = writeDocumentFile(result.path, names, TextEncoding::codepageNamed(codepage));
    if (written.ok && written.unrepresentable > 0)
        written = writeDocumentFile(result.path, names, TextEncoding::utf8(false));
    result.ok = written.ok;
    result.text = written.ok ? u"Dateiliste wurde in "_s + result.path + u" geschrieben"_s : written.error;
    return result;
}

ViewerFileResult deleteFileInFolder(const QString& folder, const QString& name) {
    ViewerFileResult result;
    if (name.isEmpty()) {
        result.text = kNoFileSelected;
        return result;
    }
    result.path = joinFolderAndName(folder, name);
    if (!fileExists(result.path)) {
        result.text = u"Datei nicht vorhanden/verfügbar"_s;
        return result;
    }
    QFile file(result.path);
    result.ok = file.remove();
    result.text = result.ok ? u"Datei gelöscht"_s
                            : u"Die Datei %1 konnte nicht gelöscht werden: keine Rechte im Verzeichnis oder "
                              u"die Datei ist schreibgeschützt."_s.arg(result.path);
    return result;
}

QString fileDateText(const QString& folder, const QString& name) {
    if (name.isEmpty())
        return kNoFileSelected;
    return fileChangeText(joinFolderAndName(folder, name));
}

} // namespace quenfor
