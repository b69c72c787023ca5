#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QLabel;
class QLineEdit;
class QWidget;

namespace quenfor {

// Writes a control's hint into the status line while the mouse is over the control, as the
// program has always done instead of tooltips.
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
    QPointer<QLabel> m_statusLine;
    QPointer<QLineEdit> m_statusEntry;
    QHash<const QObject*, QString> m_hints;
};

} // namespace quenfor
