#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QLabel;
class QWidget;

namespace quenfor {

// Writes a control's hint into the status line while the mouse is over the control, as the
// program has always done instead of tooltips.
class StatusHints : public QObject {
    Q_OBJECT

public:
    explicit StatusHints(QLabel* statusLine, QObject* parent = nullptr);

    void add(QWidget* widget, const QString& hint);
    QString hintOf(const QWidget* widget) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QLabel> m_statusLine;
    QHash<const QObject*, QString> m_hints;
};

} // namespace quenfor
