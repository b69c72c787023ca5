#pragma once

#include <QDialog>

namespace quenfor {

// The about box: the program's name, version and licence with its full text. It is modal to the
// main window and closes with its button.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

} // namespace quenfor
