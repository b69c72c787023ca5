#include "desktools/texthandback.h"

#include "common/pathsplit.h"
#include "document/linesplit.h"
#include "settings/mainsettings.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// UTF-8 with its mark holds every character of the text, and the reader takes the mark as the
// sign for UTF-8, so the lines come back exactly as they went in whatever the code page.
const TextEncoding kLossless = TextEncoding::utf8(true);

} // namespace

HandBack handBackThroughFile(const QString& text, const QString& tempFolder) {
    HandBack result;
    const QStringList lines = splitLines(text);
    const QString path = joinFolderAndName(tempFolder, kHandBackFileName);
    const WriteResult written = writeDocumentFile(path, lines, kLossless);
    if (!written.ok) {
        result.lines = lines;
        result.problem = u"Die temporäre Datei %1 konnte nicht geschrieben werden:\n%2\n\nDer Text wurde direkt in die "
                         u"Liste übernommen."_s.arg(QDir::toNativeSeparators(path), written.error);
        return result;
    }
    const ReadResult read = readDocumentFile(path, {});
    if (read.ok) {
        result.lines = read.lines;
    } else {
        result.lines = lines;
        result.problem = u"Die temporäre Datei %1 konnte nicht wieder gelesen werden:\n%2\n\nDer Text wurde direkt in "
                         u"die Liste übernommen."_s.arg(QDir::toNativeSeparators(path), read.error);
    }
    if (!QFile::remove(path) && QFile::exists(path))
        result.problem += (result.problem.isEmpty() ? QString() : u"\n\n"_s) +
                          u"Die temporäre Datei %1 konnte nicht gelöscht werden."_s.arg(QDir::toNativeSeparators(path));
    return result;
}

QString handBackQuestion(const QString& fileName) {
    return u"Text "_s + fileName + u" in Liste übernehmen ?"_s;
}

QString editorTempFolder() {
    return settingValue(Setting::TxtTempdir);
}

QString translationBackupPath(const QString& tempFolder) {
    return joinFolderAndName(tempFolder, kTranslationBackupName);
}

WriteResult writeTranslationBackup(const QString& path, const QString& text) {
    return writeDocumentFile(path, splitLines(text), kLossless);
}

} // namespace quenfor
