#include "ui/widgets/statushints.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace quenfor {

StatusHints::StatusHints(QLabel* statusLine, QObject* parent) : QObject(parent), m_statusLine(statusLine) {
    qApp->installEventFilter(this);
}

StatusHints::StatusHints(QLineEdit* statusLine, QObject* parent) : QObject(parent), m_statusEntry(statusLine) {
    qApp->installEventFilter(this);
}

QString StatusHints::statusText() const {
    if (m_statusLine)
        return m_statusLine->text();
    return m_statusEntry ? m_statusEntry->text() : QString();
}

void StatusHints::showHint(const QString& hint) {
    m_lastHint = hint;
    if (m_statusLine)
        m_statusLine->setText(hint);
    if (m_statusEntry)
        m_statusEntry->setText(hint);
}

void StatusHints::add(QWidget* widget, const QString& hint) {
    m_hints.insert(widget, hint);
    // A button's face is often a single symbol: the hint also shows as its tooltip, where the
    // pointer is, for users who do not watch the status line.
    if (qobject_cast<QAbstractButton*>(widget) && widget->toolTip().isEmpty())
        widget->setToolTip(hint);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this, widget] {
        m_hints.remove(widget);
        if (m_lastEntered == widget)
            m_lastEntered = nullptr;
    });
}

QString StatusHints::hintOf(const QWidget* widget) const {
    return m_hints.value(widget);
}

bool StatusHints::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        // The user acts: what the status line says now has been seen.
        m_textAtLastAction = statusText();
        break;
    case QEvent::Enter: {
        const auto it = m_hints.constFind(watched);
        if (it == m_hints.constEnd())
            break;
        const QString shown = statusText();
        const bool freshResult = !shown.isEmpty() && shown != m_lastHint && shown != m_textAtLastAction;
        const bool sameControl = watched == m_lastEntered;
        m_lastEntered = watched;
        if (!(freshResult && sameControl))
            showHint(*it);
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quenfor
