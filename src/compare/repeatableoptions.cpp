#include "compare/repeatableoptions.h"

#include "lint/lintrules.h"
#include "lint/namelist.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

RepeatableOptions loadRepeatableOptions(const QString& dataFolder) {
    RepeatableOptions result;
    const QString path = QDir(dataFolder).filePath(QString::fromUtf16(kRepeatableOptionsFile));
    if (const std::optional<QStringList> list = readNameList(path)) {
        result.names = QSet<QString>(list->begin(), list->end());
        return result;
    }
    result.names = {u"search_path"_s};
    result.note = u"Die Liste der wiederholbaren Optionen %1 fehlt oder ist nicht lesbar: nur search_path "
                  "sammelt Werte, bei allen anderen Optionen gilt der letzte."_s.arg(QDir::toNativeSeparators(path));
    return result;
}

} // namespace quenfor
