#pragma once

#include <QStyledItemDelegate>

namespace quenfor {

// Shows file names whose bytes are no UTF-8 (see rawfilenames.h) readably, while the model keeps
// the exact name that the delete needs.
class ReadableNameDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override;
};

} // namespace quenfor
