// The utilities for the CAD system's files, opened from the main window.
#include "ui/main/mainwindow.h"

#include "ui/cadfiles/drawingcheckerwindow.h"
#include "ui/cadfiles/purgewindow.h"
#include "ui/cadfiles/tastomatwindow.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/toolwindow.h"

#include <QAbstractButton>
#include <QAction>

using namespace Qt::StringLiterals;

namespace quenfor {

void MainWindow::connectCadFiles() {
    const auto purge = [this] { showToolWindow(m_purge, [this] { return new PurgeWindow(this); }); };
    connect(m_menus.action(u"mnuPurge"_s), &QAction::triggered, this, purge);
    connect(m_menus.action(u"mnuDrFegel"_s), &QAction::triggered, this, purge);
    if (QAbstractButton* button = m_tools->button(u"imgPurge"_s))
        connect(button, &QAbstractButton::clicked, this, purge);
    connect(m_menus.action(u"mnuModellInZeichnung"_s), &QAction::triggered, this,
            [this] { showToolWindow(m_drawingChecker, [this] { return new DrawingCheckerWindow(this); }); });
    connect(m_menus.action(u"mnuMapkeyGenerator"_s), &QAction::triggered, this,
            [this] { showToolWindow(m_tastomat, [this] { return new TastomatWindow(this); }); });
}

} // namespace quenfor
