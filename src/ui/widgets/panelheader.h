#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QWidget;

namespace quenfor {

QLabel* boldLabel(const QString& text, QWidget* parent);

// The title row every panel of the main window has: its name in bold on the left and a button on
// the right that hides the panel; `closed` runs after hiding (the panel reports it).
QHBoxLayout* makePanelHeader(QWidget* panel, const QString& title, QAbstractButton* closeButton,
                             const std::function<void()>& closed);

} // namespace quenfor
