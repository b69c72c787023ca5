#pragma once

#include <QStringView>

#include <algorithm>

namespace quenfor {

// The length of the first slice of `text` when a long text is handled in slices of about
// `maxLength` UTF-16 units: never between the two halves of a surrogate pair, which converted
// apart would turn into two wrong characters. Always at least one unit, so slicing moves on.
inline qsizetype sliceEnd(QStringView text, qsizetype maxLength) {
    const qsizetype end = std::max<qsizetype>(maxLength, 2);
    if (text.size() <= end)
        return text.size();
    if (text[end - 1].isHighSurrogate() && text[end].isLowSurrogate())
        return end - 1;
    return end;
}

} // namespace quenfor
