#include "document/mapkeysplitter.h"

#include "document/configdocument.h"
#include "document/lineediting.h"
#include "document/linekind.h"

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {
constexpr qsizetype kMinimumLength = 80;
constexpr qsizetype kFirstScanned = 6; // 1-based positions 6 to 79
constexpr qsizetype kLastScanned = 79;
} // namespace

MapkeySplitResult splitMapkeyLine(ConfigDocument& doc, const QString& entry) {
    MapkeySplitResult result;
    if (!startsWithMapkey(entry)) {
        result.refused = true;
        result.message = u"this function is for mapkeys only !"_s;
        return result;
    }
    if (entry.size() < kMinimumLength)
        return result;

    QString head;
    QString tail;
    const qsizetype last = qMin(kLastScanned, entry.size());
    for (qsizetype pos = last; pos >= kFirstScanned; --pos) {
        if (entry.at(pos - 1) == u';') {
            head = entry.left(pos) + u'\\';
            tail = u"mapkey(continued) "_s + entry.mid(pos);
            deleteSelectedLines(doc);
            break;
        }
    }
    // Without a ";" to split at, the two empty halves are still placed: the user sees two gaps
    // and knows the line needs a manual break.
    // When the insert rule appends, both halves are appended, tail first: appending marks the
    // tail, and inserting the head by the rule would put it above the tail instead.
    if (doc.marked() < 0 || !doc.isSelected(doc.marked())) {
        appendEntryLine(doc, tail);
        appendEntryLine(doc, head);
    } else {
        insertEntryLine(doc, tail);
        insertEntryLine(doc, head);
    }
    result.placed = true;
    result.entryLine = head;
    result.status = u"check your mapkey !"_s;
    return result;
}

} // namespace quenfor
