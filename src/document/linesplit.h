#pragma once

#include <QStringList>
#include <QStringView>

namespace quenfor {

// The reader's rule for line ends, used for files, the clipboard and every text that is turned
// back into lines: CR LF or a lone CR end a line, a lone LF is part of the line, and a last line
// without an end is a line of its own. An empty text has no lines.
//
// Calls sink(start, length) for each line of the complete text.
template <typename Char, typename Sink> void forEachLine(const Char* data, qsizetype size, Sink&& sink) {
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        if (data[i] != Char('\r'))
            continue;
        sink(start, i - start);
        if (i + 1 < size && data[i + 1] == Char('\n'))
            ++i;
        start = i + 1;
    }
    if (start < size)
        sink(start, size - start);
}

// The repair's rule: every CR and every LF ends a line, so CR LF ends one and adds an empty one.
template <typename Char, typename Sink> void forEachLineOrFeed(const Char* data, qsizetype size, Sink&& sink) {
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        if (data[i] != Char('\r') && data[i] != Char('\n'))
            continue;
        sink(start, i - start);
        start = i + 1;
    }
    if (start < size)
        sink(start, size - start);
}

QStringList splitLines(QStringView text);

// Offset just behind the end of line `count` (1-based) of the text, its CR or CR LF included;
// the whole size when the text has fewer lines.
qsizetype offsetAfterLines(QStringView text, qsizetype count);

} // namespace quenfor
