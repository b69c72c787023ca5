#include "ui/widgets/formwidgets.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quenfor {

QPushButton* namedButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLineEdit* numberField(const QString& name, QWidget* parent, int characters) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    const QFontMetrics metrics = field->fontMetrics();
    field->setFixedWidth(metrics.horizontalAdvance(QString(characters, u'0')) + 16);
    return field;
}

QHBoxLayout* statusRow(QLabel* status, QPushButton* closeButton) {
    auto* row = new QHBoxLayout;
    row->addWidget(status, 1);
    row->addWidget(closeButton, 0, Qt::AlignBottom);
    return row;
}

void showRed(QWidget* widget, bool red) {
    QPalette palette = widget->palette();
    const QPalette system = QApplication::palette(widget);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(role, red ? QColor(255, 0, 0) : system.color(role));
    widget->setPalette(palette);
}

} // namespace quenfor
