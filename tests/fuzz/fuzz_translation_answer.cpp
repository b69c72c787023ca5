// Any answer of the translation service (garbage, broken or hostile HTML, huge or deeply nested
// pages) gives a line or an empty line, never a crash or a hang; a page with a result_box gives
// its inner text without the first and last character.
#include "fuzzinput.h"

#include "desktools/htmlinnertext.h"
#include "desktools/translationanswer.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QByteArrayView page = input.rest();
    const QString line = translationFromAnswer(page);
    if (line.contains(u'\r') || line.contains(u'\n'))
        fuzz::fail("a translated line holds a line end");
    if (page.size() > 0 && page.size() < 65536) {
        const std::optional<QString> inner = innerTextOfElement(page, QStringLiteral("result_box"));
        if (!inner && !line.isEmpty())
            fuzz::fail("a translation from a page without result_box");
    }
    return 0;
}
