#include "ui/widgets/statushints.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace quenfor {

StatusHints::StatusHints(QLabel* statusLine, QObject* parent) : QObject(parent), m_statusLine(statusLine) {}

StatusHints::StatusHints(QLineEdit* statusLine, QObject* parent) : QObject(parent), m_statusEntry(statusLine) {}

void StatusHints::add(QWidget* widget, const QString& hint) {
    m_hints.insert(widget, hint);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this, widget] { m_hints.remove(widget); });
}

QString StatusHints::hintOf(const QWidget* widget) const {
    return m_hints.value(widget);
}

bool StatusHints::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter) {
        const auto it = m_hints.constFind(watched);
        if (it != m_hints.constEnd()) {
            if (m_statusLine)
                m_statusLine->setText(*it);
            if (m_statusEntry)
                m_statusEntry->setText(*it);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quenfor
