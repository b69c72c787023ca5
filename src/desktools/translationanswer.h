#pragma once

#include "document/documentfile.h"

#include <QByteArrayView>
#include <QString>

namespace quenfor {

// The translation of one line from the service's answer: the inner text of the page's element
// "result_box" without its first and last character (the apostrophes the request put around the
// line). Any failure gives an empty line: no such element, a broken or empty page, an answer too
// big to be a translation, a text of fewer than two characters. Line breaks inside the element
// become blanks, so a line is always translated into one line.
QString translationFromAnswer(QByteArrayView answer, const EncodingChoice& choice = {});

// Answers beyond this are not a page with one translated line; the request stops reading there.
inline constexpr qsizetype kMaxTranslationAnswerBytes = 4 * 1024 * 1024;

} // namespace quenfor
