#include "settings/tempdircheck.h"

#include "settings/mainsettings.h"
#include "settings/trailingseparator.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

bool isFolder(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isDir();
}

// Writes, closes and deletes a small file, as the later temporary files will be. The file gets a
// new unique name and is created exclusively, so a file or link planted in the folder is never
// written through; it is deleted whenever it was created, also when writing it failed.
bool takesTestFile(const QString& folder) {
    QTemporaryFile probe(folder + u"quenfor-XXXXXX.tmp"_s);
    probe.setAutoRemove(false);
    if (!probe.open())
        return false;
    const QByteArray content = "tmp\r\n";
    const bool written = probe.write(content) == content.size() && probe.flush();
    probe.close();
    const bool closed = probe.error() == QFileDevice::NoError;
    const bool removed = probe.remove();
    return written && closed && removed;
}

} // namespace

TempDirCheck checkTempDir(const QString& text) {
    TempDirCheck check;
    check.folder = text.isEmpty() ? QString() : withTrailingSeparator(text);
    if (!isFolder(check.folder)) {
        check.message = u"Das angegebene Verzeichnis existiert nicht ! "
                        u"Bitte geben Sie ein gültiges Verzeichnis mit Schreibrechten an !"_s;
        return check;
    }
    if (!takesTestFile(check.folder)) {
        check.message = u"Das angegebene Verzeichnis hat keine Schreibrechte ! "
                        u"Bitte geben Sie ein gültiges Verzeichnis mit Schreibrechten an !"_s;
        return check;
    }
    setSettingValue(Setting::TxtTempdir, check.folder);
    check.ok = true;
    check.displayText = u"temp Dir: "_s + check.folder;
    return check;
}

TempDirTextState tempDirTextState(const QString& text) {
    return isFolder(text) ? TempDirTextState::Exists : TempDirTextState::Missing;
}

} // namespace quenfor
