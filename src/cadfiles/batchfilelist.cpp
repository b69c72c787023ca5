#include "cadfiles/batchfilelist.h"

#include "cadfiles/findpattern.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

QString objectFileName(const QString& fileName) {
    const qsizetype lastDot = fileName.lastIndexOf(u'.');
    if (lastDot <= 0 || lastDot == fileName.size() - 1)
        return fileName;
    for (qsizetype i = lastDot + 1; i < fileName.size(); ++i) {
        if (!fileName.at(i).isDigit() || fileName.at(i).unicode() > 0x7f)
            return fileName;
    }
    const QString base = fileName.left(lastDot);
    return base.contains(u'.') ? base : fileName;
}

BatchFileList listBatchFiles(const QString& folder, const QString& patternText) {
    BatchFileList result;
    const QString shown = QDir::toNativeSeparators(folder);
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir()) {
        result.error = u"Das Verzeichnis \u201E%1\u201C existiert nicht."_s.arg(shown);
        return result;
    }
    if (!info.isReadable()) {
        result.error = u"Das Verzeichnis \u201E%1\u201C kann nicht gelesen werden."_s.arg(shown);
        return result;
    }

    std::vector<FindPattern> patterns;
    for (const QString& part : patternText.split(u';', Qt::SkipEmptyParts)) {
        if (!part.trimmed().isEmpty())
            patterns.emplace_back(part.trimmed());
    }
    const auto wanted = [&patterns](const QString& name) {
        return patterns.empty() ||
               std::any_of(patterns.begin(), patterns.end(), [&name](const FindPattern& p) { return p.matches(name); });
    };

    const QDir dir(folder);
    QSet<QString> seen;
    const QStringList entries = dir.entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString& entry : entries) {
        const QString name = objectFileName(entry);
        if (!seen.contains(name) && wanted(name)) {
            seen.insert(name);
            result.names << name;
        }
    }
    std::sort(result.names.begin(), result.names.end(), [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    return result;
}

} // namespace quenfor
