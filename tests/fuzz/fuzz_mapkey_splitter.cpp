// The mapkey splitter on any entry line and any document: it never crashes, and when it places
// a split the two parts hold exactly the characters of the line it was given.
#include "fuzzinput.h"

#include "document/configdocument.h"
#include "document/mapkeysplitter.h"

using namespace quenfor;
using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const uint8_t layout = input.byte();
    ConfigDocument doc;
    for (int i = 0; i < (layout & 7); ++i)
        doc.appendLine(fuzz::FuzzInput::text(input.piece()));
    if (doc.count() > 0) {
        const int marked = (layout >> 3) % doc.count();
        doc.setMarked(marked);
        if (layout & 0x80)
            doc.setSelected(marked, true);
    }
    const QString entry = fuzz::FuzzInput::text(input.rest());
    const int before = doc.count();
    const QStringList linesBefore = doc.lines();

    const MapkeySplitResult result = splitMapkeyLine(doc, entry);
    if (result.refused || !result.placed) {
        if (doc.lines() != linesBefore)
            fuzz::fail("a refused or short line changed the document");
        return 0;
    }
    if (doc.count() < before || doc.count() > before + 2)
        fuzz::fail("a split added other than up to two lines");
    // Without a ";" to split at the halves are empty; otherwise head and tail are the line.
    const QString& head = result.entryLine;
    if (!head.isEmpty() && (!head.endsWith(u'\\') || !entry.startsWith(QStringView(head).chopped(1))))
        fuzz::fail("the head of a split is not the start of the line followed by a backslash");
    if (!head.isEmpty() && !doc.lines().contains(u"mapkey(continued) "_s + entry.mid(head.size() - 1)))
        fuzz::fail("the tail of a split is not in the document");
    return 0;
}
