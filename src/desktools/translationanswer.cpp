#include "desktools/translationanswer.h"

#include "desktools/htmlinnertext.h"

using namespace Qt::StringLiterals;

namespace quenfor {

QString translationFromAnswer(QByteArrayView answer, const EncodingChoice& choice) {
    if (answer.isEmpty() || answer.size() > kMaxTranslationAnswerBytes)
        return {};
    // The answer's bytes become text by the rule every file is read with (UTF-8 when they are
    // UTF-8, else the code page); the parser then reads that text as UTF-8.
    const QByteArray page = decodeText(answer, choice).toUtf8();
    const std::optional<QString> inner = innerTextOfElement(page, u"result_box"_s);
    if (!inner || inner->size() < 2)
        return {};
    return inner->mid(1, inner->size() - 2);
}

} // namespace quenfor
