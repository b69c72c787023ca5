#pragma once

#include <QString>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace quenfor {

// Small controls the desk tools' calculator windows share, made alike in one place.

// A button that carries its control name and does not grab Enter from the fields.
QPushButton* namedButton(const QString& name, const QString& caption, QWidget* parent);

// A text field with its control name, as wide as `characters` digits need, no wider.
QLineEdit* numberField(const QString& name, QWidget* parent, int characters = 8);

// The bottom row of a tool window: its status line beside the button that closes the window.
QHBoxLayout* statusRow(QLabel* status, QPushButton* closeButton);

// Red (255, 0, 0) text, or the system's text colour again.
void showRed(QWidget* widget, bool red);

} // namespace quenfor
