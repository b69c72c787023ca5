#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QLabel;
class QLineEdit;
class QWidget;

namespace quenfor {

// Writes a control's hint into the status line while the mouse is over the control, as the
// program has always done instead of tooltips. A result the program wrote there after the user's
// last click or key stays readable: the pointer coming back onto the same control (as it does
// when a menu closes) does not wipe it; moving on to another control, or acting, does.
class StatusHints : public QObject {
    Q_OBJECT

public:
    explicit StatusHints(QLabel* statusLine, QObject* parent = nullptr);
    // A status line the user can also type into (the text editor's command entry).
    explicit StatusHints(QLineEdit* statusLine, QObject* parent = nullptr);

    void add(QWidget* widget, const QString& hint);
    QString hintOf(const QWidget* widget) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString statusText() const;
    void showHint(const QString& hint);

    QPointer<QLabel> m_statusLine;
    QString m_lastHint;
    QString m_textAtLastAction;
    const QObject* m_lastEntered = nullptr;
    QPointer<QLineEdit> m_statusEntry;
    QHash<const QObject*, QString> m_hints;
};

} // namespace quenfor
