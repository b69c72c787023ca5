#include "desktools/shotfieldfilter.h"

namespace quenfor {

namespace {

constexpr QStringView kAccepted = u"\b1234567890,";

} // namespace

bool isShotFieldCharacter(QChar c) {
    return kAccepted.contains(c);
}

bool isShotFieldText(QStringView text) {
    for (const QChar c : text) {
        // A backspace deletes when typed; it is never part of the text itself.
        if (c == u'\b' || !isShotFieldCharacter(c))
            return false;
    }
    return true;
}

} // namespace quenfor
