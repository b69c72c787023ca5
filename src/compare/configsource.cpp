#include "compare/configsource.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

bool isLockingFileName(const QString& path) {
    return QFileInfo(path).fileName().endsWith(u".sup"_s, Qt::CaseInsensitive);
}

QString binaryDataError(const QString& shownName, const QStringList& lines) {
    for (const QString& line : lines) {
        if (line.contains(QChar(0)))
            return u"Die Datei %1 enthält Binärdaten (NUL-Bytes) und ist keine Konfigurationsdatei; sie wird nicht "
                   "verglichen."_s.arg(shownName);
    }
    return {};
}

ConfigSourceRead readConfigSource(const QString& path, const EncodingChoice& encoding) {
    ConfigSourceRead result;
    ReadResult read = readDocumentFile(path, encoding);
    if (!read.ok) {
        result.error = read.error;
        return result;
    }
    result.error = binaryDataError(QDir::toNativeSeparators(path), read.lines);
    if (!result.error.isEmpty())
        return result;
    result.ok = true;
    result.source.path = path;
    result.source.lines = std::move(read.lines);
    result.source.locking = isLockingFileName(path);
    return result;
}

} // namespace quenfor
