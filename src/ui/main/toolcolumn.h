#pragma once

#include <QHash>
#include <QWidget>

class QAbstractButton;

namespace quenfor {

// The column of tool buttons beside the list; each button carries its control name.
class ToolColumn : public QWidget {
    Q_OBJECT

public:
    explicit ToolColumn(QWidget* parent = nullptr);
    QAbstractButton* button(const QString& objectName) const { return m_buttons.value(objectName); }

private:
    QHash<QString, QAbstractButton*> m_buttons;
};

// The context menu of the list: a small frame of buttons that stays until hidden.
class ContextMenuPanel : public QWidget {
    Q_OBJECT

public:
    explicit ContextMenuPanel(QWidget* parent = nullptr);
    QAbstractButton* button(const QString& objectName) const { return m_buttons.value(objectName); }

private:
    QHash<QString, QAbstractButton*> m_buttons;
};

} // namespace quenfor
