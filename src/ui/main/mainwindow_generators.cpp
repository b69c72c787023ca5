// The generators in the main window: mapkey tools, the configuration proposal, the search.pro
// generator, the favourites constructor, replacing and the path converter.
#include "ui/main/mainwindow.h"

#include "document/configdocument.h"
#include "knowledge/favorites.h"
#include "knowledge/proposal.h"
#include "knowledge/searchprotexts.h"
#include "ui/widgets/dialogs.h"
#include "ui/knowledge/duplicatemapkeywindow.h"
#include "ui/main/entrylinepanel.h"
#include "ui/knowledge/explanationpanel.h"
#include "ui/knowledge/favoritespanel.h"
#include "ui/main/filechooserpanel.h"
#include "ui/knowledge/formopt.h"
#include "ui/knowledge/mapkeylistwindow.h"
#include "ui/knowledge/pathconverterwindow.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/knowledge/proposalactions.h"
#include "ui/knowledge/replacedialog.h"
#include "ui/knowledge/searchprowindow.h"
#include "ui/main/toolcolumn.h"
#include "ui/widgets/toolwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QMouseEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The proposal button answers both mouse buttons: left proposes, right offers the ghost options.
class RightClickFilter : public QObject {
public:
    RightClickFilter(QObject* parent, std::function<void()> onRight) : QObject(parent), m_onRight(std::move(onRight)) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
            m_onRight();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_onRight;
};

} // namespace

void MainWindow::connectGenerators() {
    auto on = [this](const QString& name, auto handler) {
        connect(m_menus.action(name), &QAction::triggered, this, handler);
    };
    auto onButton = [this](QAbstractButton* button, auto handler) {
        if (button)
            connect(button, &QAbstractButton::clicked, this, handler);
    };

    const auto findDuplicates = [this] {
        if (!m_duplicateMapkeys)
            m_duplicateMapkeys = new DuplicateMapkeyWindow(m_document, this);
        setStatus(m_duplicateMapkeys->findDuplicates());
    };
    on(u"mnuDoppelteMapkeys"_s, findDuplicates);
    onButton(m_tools->button(u"img_dmapkeys"_s), findDuplicates);
    const auto listMapkeys = [this] {
        showToolWindow(m_mapkeyList, [this] { return new MapkeyListWindow(m_document, this); });
    };
    on(u"mnuMapkeysAuflisten"_s, listMapkeys);
    onButton(m_tools->button(u"cmd_listmapkeys"_s), listMapkeys);

    const auto propose = [this] { proposeConfiguration(this, m_document, m_pathOptions); };
    on(u"mnuVorschlag"_s, propose);
    on(u"mnuNeu"_s, [this] { showToolWindow(m_pathOptions, [this] { return new FormOpt(m_document, this); }); });
    if (QAbstractButton* proposal = m_tools->button(u"img_vorschlag"_s)) {
        connect(proposal, &QAbstractButton::clicked, this, propose);
        proposal->installEventFilter(new RightClickFilter(proposal, [this] { addGhostOptions(); }));
    }

    on(u"mnuSearchPro"_s, [this] { openSearchProGenerator(); });
    onButton(m_picker->searchProButton(), [this] { openSearchProGenerator(); });

    const auto favourites = [this] { m_entry->setText(m_favorites->takeApart(m_entry->text())); };
    on(u"mnuFavoriten"_s, favourites);
    connect(m_entry, &EntryLinePanel::favoriteCheckClicked, this, favourites);
    connect(m_favorites, &FavoritesPanel::lineToDocument, this,
            [this](const QString& line) { m_document->appendLine(line); });
    connect(m_favorites, &FavoritesPanel::helpRequested, this,
            [this](const QString& text) { explanationPanel()->showExplanation(text); });

    on(u"mnuErsetzen"_s, [this] { showToolWindow(m_replace, [this] { return new ReplaceDialog(m_document, this); }); });
    on(u"mnuPfadUmwandlung"_s,
       [this] { showToolWindow(m_pathConverter, [this] { return new PathConverterWindow(this); }); });
}

void MainWindow::addGhostOptions() {
    QAbstractButton* proposal = m_tools->button(u"img_vorschlag"_s);
    // While the question stands, the button shows the ghost instead of the proposal.
    const QString face = proposal->text();
    proposal->setText(u"☁"_s);
    quenfor::addGhostOptions(this, *m_document);
    proposal->setText(face);
}

void MainWindow::showSearchProFrame() {
    if (auto* frame = m_picker->findChild<QWidget*>(u"frame_search_pro"_s))
        frame->show();
}

void MainWindow::openSearchProGenerator() {
    showToolWindow(m_searchPro, [this] {
        auto* window = new SearchProWindow(m_chooser->folder(), this);
        connect(window, &SearchProWindow::linesToDocument, this, [this](const QStringList& lines, bool all) {
            appendSearchProLines(*m_document, lines, all);
            if (all)
                showSearchProFrame();
            showFileLabel();
        });
        connect(window, &SearchProWindow::fileNameChosen, this, [this](const QString& path) {
            m_document->setFileName(path);
            showFileLabel();
            applyFamilyOf(path);
        });
        connect(window, &SearchProWindow::closing, this, [this] {
            showSearchProFrame();
            m_chooser->setSaveName(u"search.pro"_s);
            nameUnnamedSearchProDocument(*m_document);
            showFileLabel();
        });
        return window;
    });
}

} // namespace quenfor
