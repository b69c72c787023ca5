#pragma once

#include <QChar>
#include <QStringView>

namespace quenfor {

// X, Y, BREITE and HOEHE of the screenshot window take only digits and the decimal comma (and
// backspace, which deletes). A text made only of those is what a field may hold, whether typed
// or pasted.
bool isShotFieldCharacter(QChar c);
bool isShotFieldText(QStringView text);

} // namespace quenfor
