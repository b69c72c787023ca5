#include "document/entrylinecheck.h"

#include "document/configdocument.h"
#include "document/linekind.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The last entry that starts like the entry line wins, so search from the end.
const QString* lastStartingWith(const QStringList& list, const QString& entry) {
    for (qsizetype i = list.size() - 1; i >= 0; --i) {
        if (list.at(i).startsWith(entry))
            return &list.at(i);
    }
    return nullptr;
}

} // namespace

EntryLineCheck checkEntryLine(const QString& entry, const QStringList& picker, const ConfigDocument& doc) {
    EntryLineCheck check;
    if (entry.size() > EntryLineCheck::kLengthLimit) {
        check.tooLong = true;
        check.entryWidthTwips = EntryLineCheck::kWideWidthTwips;
        check.warning = u"mehr als 98 Zeichen in Zeile ! (Umbruch mit \\ trennen)"_s;
    }

    // A line of the document overrides a picker entry.
    if (const QString* line = lastStartingWith(doc.lines(), entry))
        check.preview = EntryLineCheck::Preview{*line, EntryLineCheck::kDocumentColor};
    else if (const QString* option = lastStartingWith(picker, entry))
        check.preview = EntryLineCheck::Preview{*option, EntryLineCheck::kPickerColor};

    if (isFavoriteLine(entry))
        check.favoriteIconLeft = 480;
    return check;
}

} // namespace quenfor
