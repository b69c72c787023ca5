#include "common/regularfile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace quenfor {

bool isRegularFile(const QString& path) {
    return regularFileStatus(path) == FileOpen::Opened;
}

QString fileOpenRefusalText(FileOpen outcome, const QString& path) {
    const QString name = QDir::toNativeSeparators(path);
    switch (outcome) {
    case FileOpen::Opened:
        return {};
    case FileOpen::Missing:
        return u"Die Datei \"%1\" gibt es nicht."_s.arg(name);
    case FileOpen::Folder:
        return u"\"%1\" ist ein Verzeichnis, keine Datei."_s.arg(name);
    case FileOpen::NotRegular:
        return u"\"%1\" ist keine gewöhnliche Datei (sondern eine Pipe, ein Socket oder ein Gerät) und wird "
               "nicht geöffnet."_s.arg(name);
    case FileOpen::Unreadable:
        return u"Die Datei \"%1\" kann nicht gelesen werden."_s.arg(name);
    }
    return {};
}

} // namespace quenfor
