#include "document/documentstorage.h"

#include "common/pathsplit.h"
#include "document/configdocument.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

StorageResult fromWrite(const WriteResult& written, const TextEncoding& encoding, const QString& status) {
    StorageResult result;
    result.ok = written.ok;
    if (written.ok) {
        result.status = status;
        result.warning = written.warning(encoding);
    } else {
        result.error = written.error;
        result.changedOnDisk = written.changedOnDisk;
    }
    return result;
}

} // namespace

QString closeQuestion(const QString& fileName) {
    return u"Wollen Sie die Datei "_s + fileName + u" speichern ?"_s;
}

QString chooserPath(const QString& folder, const QString& name) {
    if (QDir::isAbsolutePath(name))
        return name;
    return joinFolderAndName(folder, name);
}

QString saveTargetFor(const QString& fileName, const QString& programDir) {
    if (fileName.isEmpty())
        return joinFolderAndName(programDir, u"config.pro");
    if (QDir::isAbsolutePath(fileName))
        return fileName;
    return QDir(programDir).filePath(fileName);
}

StorageResult openDocument(ConfigDocument& doc, const QString& path, const EncodingChoice& choice) {
    StorageResult result;
    if (path.isEmpty()) {
        result.error = QString::fromUtf16(kChooseFileFirst);
        return result;
    }
    ReadResult read = readDocumentFile(path, choice);
    if (!read.ok) {
        result.error = read.error;
        return result;
    }
    doc.replaceAll(std::move(read.lines));
    doc.setFileName(QFileInfo(path).absoluteFilePath());
    doc.setEncoding(read.encoding);
    doc.setDiskStamp(read.stamp);
    result.ok = true;
    result.status = fileFamilyOf(path).pickerLoadedStatus();
    if (read.lineFeedsOnly)
        result.hint = QString::fromUtf16(kLineFeedsOnlyHint);
    return result;
}

StorageResult saveDocument(ConfigDocument& doc, const QString& programDir, OthersChanges others) {
    const QString target = saveTargetFor(doc.fileName(), programDir);
    const bool sameFile = !doc.fileName().isEmpty() && target == doc.fileName();
    const std::optional<FileStamp> readAs =
        sameFile && others == OthersChanges::Keep ? doc.diskStamp() : std::optional<FileStamp>();
    const WriteResult written = writeDocumentFile(target, doc.lines(), doc.encoding(), readAs);
    if (written.ok) {
        doc.setFileName(target);
        doc.setDiskStamp(fileStampOf(target));
    }
    return fromWrite(written, doc.encoding(), u"Datei wurde gespeichert"_s);
}

StorageResult saveDocumentAs(ConfigDocument& doc, const QString& folder, const QString& name) {
    const QString target = chooserPath(folder, name);
    const WriteResult written = writeDocumentFile(target, doc.lines(), doc.encoding());
    if (written.ok) {
        doc.setFileName(target);
        doc.setDiskStamp(fileStampOf(target));
    }
    return fromWrite(written, doc.encoding(), u"Datei wurde gespeichert"_s);
}

StorageResult saveDocumentCopy(const ConfigDocument& doc, const QString& folder, const QString& name) {
    if (name.isEmpty())
        return {};
    const WriteResult written = writeDocumentFile(chooserPath(folder, name), doc.lines(), doc.encoding());
    return fromWrite(written, doc.encoding(), u"Kopie wurde gespeichert"_s);
}

} // namespace quenfor
