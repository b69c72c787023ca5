#include "knowledge/replacelines.h"

#include "common/textreplace.h"
#include "document/configdocument.h"
#include "settings/settingsstore.h"

#include <algorithm>
#include <cstring>

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

namespace {

void replaceFirstInPlace(QString& line, const QString& find, const QString& replacement) {
    if (find.isEmpty()) {
        if (line.isEmpty())
            return;
        // Growing at the end and moving the text keeps a huge line in its buffer, where
        // prepend would allocate a new one beside it.
        const qsizetype size = line.size();
        line.resize(size + replacement.size());
        QChar* text = line.data();
        std::memmove(text + replacement.size(), text, size_t(size) * sizeof(QChar));
        std::copy(replacement.cbegin(), replacement.cend(), text);
        return;
    }
    replaceFirstIgnoringCase(line, find, replacement);
}

// For a line that holds the find text: whether the found text differs from the replacement.
bool replacementChanges(const QString& line, const QString& find, const QString& replacement) {
    if (find.isEmpty())
        return !replacement.isEmpty();
    // Qt folds case per character, so the match is exactly as long as the search text.
    const qsizetype at = line.indexOf(find, 0, Qt::CaseInsensitive);
    return QStringView(line).sliced(at, find.size()) != replacement;
}

} // namespace

QString replaceFirstInLine(const QString& line, const QString& find, const QString& replacement) {
    QString result = line;
    replaceFirstInPlace(result, find, replacement);
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
        // The line is changed where it is: a copy of a huge line would double it.
        if (replacementChanges(line, find, replacement))
            document.editLine(i, [&](QString& text) { replaceFirstInPlace(text, find, replacement); });
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
