// Any answer of the translation service (garbage, broken or hostile HTML, huge or deeply nested
// pages) gives a line or an empty line, never a crash or a hang; a page with a result_box gives
// its inner text without the first and last character.
#include "fuzzinput.h"

#include "desktools/htmlinnertext.h"
#include "desktools/translationanswer.h"

#include <algorithm>

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QByteArrayView page = input.rest();
    const QString line = translationFromAnswer(page);
    if (line.contains(u'\r') || line.contains(u'\n'))
        fuzz::fail("a translated line holds a line end");
    // The answer is decoded before it is parsed (UTF-8 or the code page); for plain ASCII the
    // parser then sees the very same bytes, so the two must agree.
    const bool plainAscii = std::all_of(page.begin(), page.end(), [](char c) { return c > 0 && c < 0x7f; });
    if (plainAscii && page.size() > 0 && page.size() < 65536) {
        const std::optional<QString> inner = innerTextOfElement(page, QStringLiteral("result_box"));
        if (!inner && !line.isEmpty())
            fuzz::fail("a translation from a page without result_box");
    }
    return 0;
}
