#include "knowledge/replacelines.h"

#include "common/textreplace.h"
#include "document/configdocument.h"
#include "settings/settingsstore.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QString kReplaceApplication = u"quenfor"_s;
const QString kReplaceSection = u"Optionen"_s;
const QString kFindKey = u"txt_finde"_s;
const QString kReplacementKey = u"txt_replace"_s;

} // namespace

bool lineHoldsFindText(const QString& line, const QString& find) {
    if (find.isEmpty())
        return !line.isEmpty();
    return line.contains(find, Qt::CaseInsensitive);
}

QString replaceFirstInLine(const QString& line, const QString& find, const QString& replacement) {
    if (find.isEmpty())
        return line.isEmpty() ? line : replacement + line;
    QString result = line;
    replaceFirstIgnoringCase(result, find, replacement);
    return result;
}

int replaceInDocument(ConfigDocument& document, const QString& find, const QString& replacement) {
    int count = 0;
    for (int i = 0; i < document.count(); ++i) {
        const QString& line = document.line(i);
        if (!lineHoldsFindText(line, find))
            continue;
        ++count;
        // A replacement equal to the found text leaves the line as it was: nothing to announce.
        QString replaced = replaceFirstInLine(line, find, replacement);
        if (replaced != line)
            document.setLine(i, replaced);
    }
    return count;
}

ReplaceTexts loadReplaceTexts() {
    const SettingsStore store(kReplaceApplication);
    return {store.value(kReplaceSection, kFindKey, u"Suchbegriff eingeben"_s),
            store.value(kReplaceSection, kReplacementKey, u"Ersatzbegriff eingeben"_s)};
}

bool storeReplaceTexts(const ReplaceTexts& texts) {
    SettingsStore store(kReplaceApplication);
    const bool findStored = store.setValue(kReplaceSection, kFindKey, texts.find);
    const bool replacementStored = store.setValue(kReplaceSection, kReplacementKey, texts.replacement);
    return findStored && replacementStored;
}

} // namespace quenfor
