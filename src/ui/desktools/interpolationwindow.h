#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;

namespace quenfor {

class StatusHints;

// "lineare Interpolation": two points (x1, y1), (x2, y2) and a position a give b with the tool's
// own formula. The five input fields take only digits and the decimal comma; a typed point
// becomes a comma.
class InterpolationWindow : public QWidget {
    Q_OBJECT

public:
    explicit InterpolationWindow(QWidget* parent = nullptr);

    void calculate(); // cmd_calc

private:
    void filterField(QLineEdit* field);

    std::array<QLineEdit*, 5> m_inputs{}; // x1, y1, x2, y2, a
    QLineEdit* m_result = nullptr;        // b
    QLabel* m_status = nullptr;
    StatusHints* m_hints = nullptr;
};

} // namespace quenfor
