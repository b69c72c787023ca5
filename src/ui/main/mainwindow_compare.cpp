// "Vergleichen…" and "config.sup wählen…" in the Datei menu: two files side by side, and which
// lines of the open file a config.sup beside it makes void.
#include "ui/main/mainwindow.h"

#include "common/programfolders.h"
#include "compare/effectiveconfig.h"
#include "compare/linemarks.h"
#include "compare/repeatableoptions.h"
#include "document/configdocument.h"
#include "settings/mainsettings.h"
#include "ui/compare/comparewindow.h"
#include "ui/main/documentlistmodel.h"
#include "ui/main/documentlistview.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/toolwindow.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

EncodingChoice encodingOfSettings() {
    return {settingValue(Setting::Codepage), false};
}

} // namespace

void MainWindow::connectCompare() {
    connect(m_menus.action(u"mnuVergleichen"_s), &QAction::triggered, this, &MainWindow::openCompareWindow);
    connect(m_menus.action(u"mnuConfigSup"_s), &QAction::triggered, this, &MainWindow::chooseConfigSup);
    connect(m_menus.action(u"mnuConfigSupAus"_s), &QAction::triggered, this, &MainWindow::dropConfigSup);
    m_menus.action(u"mnuConfigSupAus"_s)->setEnabled(false);

    m_marksTimer = new QTimer(this);
    m_marksTimer->setSingleShot(true);
    m_marksTimer->setInterval(300);
    connect(m_marksTimer, &QTimer::timeout, this, &MainWindow::refreshLineMarks);
    const auto later = [this] {
        if (m_configSup)
            m_marksTimer->start();
    };
    connect(m_document, &ConfigDocument::resetDone, this, later);
    connect(m_document, &ConfigDocument::linesInserted, this, later);
    connect(m_document, &ConfigDocument::linesRemoved, this, later);
    connect(m_document, &ConfigDocument::linesChanged, this, later);
}

void MainWindow::openCompareWindow() {
    showToolWindow(m_compare, [this] {
        return new CompareWindow(QDir::toNativeSeparators(m_document->fileName()), encodingOfSettings(), this);
    });
}

void MainWindow::chooseConfigSup() {
    const QString start = m_configSup ? m_configSup->path : QFileInfo(m_document->fileName()).absolutePath();
    const QString path =
        Dialogs::openFile(this, tr("config.sup wählen"), start, tr("config.sup (*.sup);;Alle Dateien (*)"));
    if (path.isEmpty())
        return;
    ConfigSourceRead read = readConfigSource(path, encodingOfSettings());
    if (!read.ok) {
        Dialogs::critical(this, read.error);
        return;
    }
    read.source.locking = true; // chosen as config.sup, whatever its name
    m_configSup = std::move(read.source);
    m_menus.action(u"mnuConfigSupAus"_s)->setEnabled(true);
    refreshLineMarks();
    if (auto* model = qobject_cast<DocumentListModel*>(m_list->model()))
        setStatus(lineMarkSummary(m_configSup->path, model->lineMarks()));
}

void MainWindow::dropConfigSup() {
    m_configSup.reset();
    m_marksTimer->stop();
    if (auto* model = qobject_cast<DocumentListModel*>(m_list->model()))
        model->clearLineMarks();
    m_menus.action(u"mnuConfigSupAus"_s)->setEnabled(false);
    setStatus(tr("config.sup abgewählt: keine Markierungen mehr"));
}

void MainWindow::refreshLineMarks() {
    auto* model = qobject_cast<DocumentListModel*>(m_list->model());
    if (!m_configSup || !model)
        return;
    const QString name = m_document->fileName().isEmpty() ? u"config.pro"_s : m_document->fileName();
    const std::vector<ConfigSource> sources = {*m_configSup, {name, m_document->lines(), false}};
    const EffectiveConfig config = effectiveConfig(sources, loadRepeatableOptions(programDataFolder()).names);
    model->setLineMarks(lineMarksOf(config, sources, 1));
}

} // namespace quenfor
