// The "Prüfen" view: reached from the tool column and the context menu, shown below the list.
#include "ui/main/mainwindow.h"

#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "lint/linttexts.h"
#include "ui/main/documentlistview.h"
#include "ui/main/lintpanel.h"
#include "ui/widgets/statushints.h"
#include "ui/main/toolcolumn.h"

#include <QAbstractButton>
#include <QDockWidget>

using namespace Qt::StringLiterals;

namespace quenfor {

void MainWindow::connectLint() {
    const QString hint = QString::fromUtf16(kLintButtonHint);
    if (QAbstractButton* button = m_tools->button(u"cmd_pruefen"_s)) {
        connect(button, &QAbstractButton::clicked, this, &MainWindow::showLintPanel);
        m_hints->add(button, hint);
    }
    if (QAbstractButton* entry = m_contextMenu->button(u"cmd_kontext_pruefen"_s)) {
        connect(entry, &QAbstractButton::clicked, this, [this] {
            m_contextMenu->hide();
            showLintPanel();
        });
        m_hints->add(entry, hint);
    }
}

void MainWindow::showLintPanel() {
    if (!m_lintDock) {
        m_lintDock = new QDockWidget(QString::fromUtf16(kLintCaption), this);
        m_lintDock->setObjectName(u"dock_pruefen"_s);
        m_lintDock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                                QDockWidget::DockWidgetFloatable);
        m_lintPanel = new LintPanel(m_document, m_lintDock);
        m_lintPanel->registerHints(*m_hints);
        m_lintDock->setWidget(m_lintPanel);
        addDockWidget(Qt::BottomDockWidgetArea, m_lintDock);
        resizeDocks({m_lintDock}, {height() / 4}, Qt::Vertical);
        connect(m_lintPanel, &LintPanel::findingChosen, this, [this](int index, const QString& message) {
            if (index >= m_document->count())
                return; // the list got shorter since the check
            showCentre(m_list);
            selectAndShowLine(*m_document, index);
            lineClicked(index); // as a click on the line: entry line, path markers, explanation
            setStatus(message);
        });
    }
    m_lintDock->show();
    m_lintDock->raise();
    m_lintPanel->check();
}

} // namespace quenfor
