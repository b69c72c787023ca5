#include "ui/widgets/readablenamedelegate.h"

#include "common/rawfilenames.h"

namespace quenfor {

QString ReadableNameDelegate::displayText(const QVariant& value, const QLocale& locale) const {
    return QStyledItemDelegate::displayText(readableFileName(value.toString()), locale);
}

} // namespace quenfor
