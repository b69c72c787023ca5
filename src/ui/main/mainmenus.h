#pragma once

#include <QHash>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;

namespace quenfor {

// The menu bar of the main window: every caption in its order, each action reachable by its
// object name.
struct MainMenus {
    QMenu* optionMenu = nullptr; // mnuOption, disabled for drawing setup and plotter files
    QHash<QString, QAction*> actions;

    QAction* action(const QString& objectName) const { return actions.value(objectName); }
};

MainMenus buildMainMenus(QMenuBar* bar);

} // namespace quenfor
