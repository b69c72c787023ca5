// Line classification, the file family and the entry-line rules take any text: a line from a
// binary file or a file name with control characters must neither crash nor give answers that
// contradict each other.
#include "fuzzinput.h"

#include "document/filefamily.h"
#include "document/linekind.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QString fileName = fuzz::FuzzInput::text(input.piece());
    const QString line = fuzz::FuzzInput::text(input.rest());

    const LineKind kind = classifyLine(line);
    if (lineKindName(kind).isEmpty())
        fuzz::fail("a line kind without a name");
    if (classifyLine(line) != kind)
        fuzz::fail("classification is not repeatable");
    if (isContinuationLine(line) && !line.startsWith(u"mapkey(continued)"))
        fuzz::fail("a continuation line that does not begin with mapkey(continued)");
    if (isCommentLine(line) && !line.startsWith(u'!'))
        fuzz::fail("a comment line that does not begin with !");

    // Only the all-lower and the all-upper spelling of an ending count, and both the same way.
    const FamilyKind family = fileFamilyOf(fileName).kind;
    if (fileName == fileName.toLower() && fileFamilyOf(fileName.toUpper()).kind != family)
        fuzz::fail("the upper-case spelling of a lower-case name belongs to another family");
    if (familyKindName(family).isEmpty())
        fuzz::fail("a family without a name");
    return 0;
}
