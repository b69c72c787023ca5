#include "ui/desktools/emptyondoubleclick.h"

#include <QEvent>
#include <QLineEdit>

namespace quenfor {

namespace {

class DoubleClickEmptier : public QObject {
public:
    explicit DoubleClickEmptier(QLineEdit* line) : QObject(line), m_line(line) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == m_line && event->type() == QEvent::MouseButtonDblClick) {
            m_line->clear();
            return true;
        }
        return false;
    }

private:
    QLineEdit* m_line;
};

} // namespace

void emptyOnDoubleClick(QLineEdit* line) {
    line->installEventFilter(new DoubleClickEmptier(line));
}

} // namespace quenfor
