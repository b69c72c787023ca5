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
    // One line goes in, one line must come out: line breaks of a page that put blocks or a table
    // into the element (a broken page does that) would shift every later line of the text.
    QString line = inner->mid(1, inner->size() - 2);
    line.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
    return line;
}

} // namespace quenfor
