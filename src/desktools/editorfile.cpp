#include "desktools/editorfile.h"

#include "common/fileexists.h"
#include "common/pathsplit.h"
#include "common/programfolders.h"
#include "common/regularfile.h"
#include "common/wholefile.h"
#include "document/linesplit.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString native(const QString& path) {
    return QDir::toNativeSeparators(path);
}

QString failure(const QString& reason) {
    return QString::fromUtf16(kEditorFailure) + u"\n\n"_s + reason;
}

EditorFile refused(const QString& reason) {
    EditorFile file;
    file.error = failure(reason);
    return file;
}

EditorSave write(const QString& path, const QString& text, const TextEncoding& encoding, const QString& status) {
    EditorSave save;
    save.path = path;
    const WriteResult written = writeDocumentFile(path, splitLines(text), encoding);
    if (!written.ok) {
        save.message = failure(written.error);
        return save;
    }
    save.outcome = EditorSave::Outcome::Saved;
    save.status = status;
    save.warning = written.warning(encoding);
    return save;
}

} // namespace

EditorFile readEditorFile(const QString& path, const EncodingChoice& choice) {
    const QFileInfo info(path);
    if (!info.exists())
        return refused(u"Die Datei %1 gibt es nicht."_s.arg(native(path)));
    if (info.isDir())
        return refused(u"%1 ist ein Verzeichnis, keine Datei."_s.arg(native(path)));
    // A pipe or device would block the editor or never end; its size says nothing.
    if (const FileOpen status = regularFileStatus(path); status != FileOpen::Opened)
        return refused(fileOpenRefusalText(status, path));
    if (info.size() > kMaxEditorFileBytes)
        return refused(u"Die Datei %1 ist mit %2 MB zu groß für den Text-Editor (höchstens %3 MB)."_s.arg(native(path))
                           .arg(info.size() / (1024 * 1024))
                           .arg(kMaxEditorFileBytes / (1024 * 1024)));
    FileOpen opened = FileOpen::Opened;
    const QByteArray bytes = readWholeFile(path, &opened);
    if (opened == FileOpen::NotRegular || opened == FileOpen::Folder)
        return refused(fileOpenRefusalText(opened, path));
    if (bytes.isEmpty() && (opened != FileOpen::Opened || info.size() > 0 || !info.isReadable()))
        return refused(u"Die Datei %1 kann nicht gelesen werden."_s.arg(native(path)));
    if (bytes.contains('\0'))
        return refused(
            u"Die Datei %1 enthält Binärdaten (NUL-Bytes) und kann im Text-Editor nicht bearbeitet werden."_s.arg(
                native(path)));
    EditorFile file;
    file.ok = true;
    file.text = decodeText(bytes, choice, &file.encoding);
    return file;
}

QString defaultEditorFile() {
    return joinFolderAndName(native(programFolder()), u"Skribb.txt");
}

EditorSave saveEditorText(const QString& currentName, const QString& text, const TextEncoding& encoding) {
    const QString path = currentName.isEmpty() ? defaultEditorFile() : currentName;
    if (!fileExists(path)) {
        EditorSave save;
        save.outcome = EditorSave::Outcome::NeedsName;
        save.path = path;
        save.message = QString::fromUtf16(kEditorNeedsName);
        return save;
    }
    return write(path, text, encoding, u"Datei "_s + native(path) + u" wurde gespeichert"_s);
}

EditorSave saveEditorTextAs(const QString& folder, const QString& name, const QString& text,
                            const TextEncoding& encoding) {
    if (name.trimmed().isEmpty()) {
        EditorSave save;
        save.outcome = EditorSave::Outcome::NeedsName;
        save.message = QString::fromUtf16(kEditorNeedsName);
        return save;
    }
    const QString path = joinFolderAndName(folder, name);
    return write(path, text, encoding, u"Datei wurde gespeichert unter "_s + native(path));
}

QString replaceFileQuestion(const QString& path) {
    return u"Die Datei %1 gibt es schon. Soll sie ersetzt werden ?"_s.arg(native(path));
}

} // namespace quenfor
