#include "common/textreplace.h"

namespace quenfor {

bool replaceFirstIgnoringCase(QString& text, QStringView search, QStringView replacement) {
    if (search.isEmpty())
        return false;
    const qsizetype position = text.indexOf(search, 0, Qt::CaseInsensitive);
    if (position < 0)
        return false;
    // Qt folds case per character, so the match is exactly as long as the search text.
    text.replace(position, search.size(), replacement.data(), replacement.size());
    return true;
}

} // namespace quenfor
