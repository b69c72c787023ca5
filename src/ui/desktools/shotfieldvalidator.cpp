#include "ui/desktools/shotfieldvalidator.h"

#include "desktools/shotfieldfilter.h"

namespace quenfor {

QValidator::State ShotFieldValidator::validate(QString& input, int& /*position*/) const {
    // Every text of the allowed characters may stand while typing; the shot checks the value.
    return isShotFieldText(input) ? Acceptable : Invalid;
}

} // namespace quenfor
