#include "ui/widgets/qtclipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quenfor {

QString QtClipboard::text() const {
    return QGuiApplication::clipboard()->text();
}

void QtClipboard::setText(const QString& text) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(text);
}

} // namespace quenfor
