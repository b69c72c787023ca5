#include "cadfiles/doitfile.h"

#include "common/pathsplit.h"
#include "document/documentfile.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

QString doitPath(const QString& folder) {
    return joinFolderAndName(QDir::toNativeSeparators(folder), QString::fromUtf16(kDoitFileName));
}

QString doitOverwriteQuestion(const QString& path) {
    return u"Die Datei \u201E%1\u201C existiert bereits. Soll sie ersetzt werden ?"_s.arg(path);
}

DoitWriteResult writeDoitFile(const QString& folder, const QStringList& lines, const TextEncoding& encoding) {
    DoitWriteResult result;
    if (folder.trimmed().isEmpty()) {
        result.error = u"Bitte wählen Sie den Ordner, in den doit.pro geschrieben werden soll."_s;
        return result;
    }
    result.path = doitPath(folder);
    if (!QFileInfo(folder).isDir()) {
        result.error = u"Das Verzeichnis \u201E%1\u201C existiert nicht. doit.pro wurde nicht geschrieben."_s.arg(
            QDir::toNativeSeparators(folder));
        return result;
    }
    if (lines.isEmpty()) {
        result.error = u"Es gibt keine Mapkeys zum Schreiben."_s;
        return result;
    }

    QString codecError;
    const auto codec = LineCodec::create(encoding, &codecError);
    if (!codec) {
        result.error = codecError;
        return result;
    }
    for (const QString& line : lines) {
        QByteArray bytes;
        qsizetype unrepresentable = 0;
        codec->encodeAppend(line, bytes, unrepresentable);
        if (unrepresentable > 0) {
            result.error =
                u"Die Zeile \u201E%1\u201C enthält Zeichen, die in %2 nicht darstellbar sind. doit.pro wurde "
                u"nicht geschrieben."_s.arg(line, encoding.displayName());
            return result;
        }
    }

    const WriteResult written = writeDocumentFile(result.path, lines, encoding);
    result.ok = written.ok;
    result.error = written.error;
    return result;
}

} // namespace quenfor
