#include "cadfiles/filechangetext.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quenfor {

QString fileChangeText(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return u"Die Datei \"%1\" gibt es nicht mehr."_s.arg(path);
    return info.lastModified().toString(u"dd.MM.yyyy HH:mm:ss"_s);
}

} // namespace quenfor
