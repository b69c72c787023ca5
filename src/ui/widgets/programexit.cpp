#include "ui/widgets/programexit.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QWidget>

namespace quenfor {

bool closeToolWindows() {
    QList<QPointer<QWidget>> tools;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !qobject_cast<QMainWindow*>(window))
            tools.append(window);
    }
    for (const QPointer<QWidget>& tool : tools) {
        if (tool && tool->isVisible() && !tool->close())
            return false;
    }
    return true;
}

void endWholeProgram() {
    // The tool windows close first: one of them may still hand lines to the main window's
    // document, which the main window then offers to save when its own turn comes.
    if (closeToolWindows())
        QApplication::closeAllWindows();
}

} // namespace quenfor
