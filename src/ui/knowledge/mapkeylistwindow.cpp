#include "ui/knowledge/mapkeylistwindow.h"

#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "knowledge/mapkeytools.h"
#include "ui/knowledge/mapkeylistview.h"

#include <QHBoxLayout>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

MapkeyListWindow::MapkeyListWindow(ConfigDocument* document, QWidget* parent)
    : QDialog(parent), m_document(document), m_names(new QStringListModel(this)), m_reloadTimer(new QTimer(this)) {
    setObjectName(u"frm_listmapkey"_s);
    setWindowTitle(tr("Mapkeys"));
    setModal(false);

    m_list = makeMapkeyListView(u"List1"_s, m_names, this);
    // Enter on the keyboard does what the click does.
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex& index) { findName(index.row()); });
    connect(m_list, &QListView::activated, this, [this](const QModelIndex& index) { findName(index.row()); });

    auto* closeButton = new QPushButton(tr("Schließen"), this);
    closeButton->setObjectName(u"cmd_quit"_s);
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &MapkeyListWindow::close);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    resize(280, 420);

    // An edit often comes as many signals (a paste, a clean-up tool): read the names once after it.
    m_reloadTimer->setSingleShot(true);
    m_reloadTimer->setInterval(0);
    connect(m_reloadTimer, &QTimer::timeout, this, &MapkeyListWindow::reload);
    if (m_document) {
        const auto changed = [this] { m_reloadTimer->start(); };
        connect(m_document, &ConfigDocument::resetDone, this, changed);
        connect(m_document, &ConfigDocument::linesInserted, this, changed);
        connect(m_document, &ConfigDocument::linesRemoved, this, changed);
        connect(m_document, &ConfigDocument::linesChanged, this, changed);
    }
    reload();
}

QStringList MapkeyListWindow::names() const {
    return m_names->stringList();
}

void MapkeyListWindow::reload() {
    m_reloadTimer->stop();
    const QModelIndex current = m_list->currentIndex();
    const int currentRow = current.row();
    const QString currentName = current.data().toString();

    const QStringList names = m_document ? mapkeyNames(m_document->lines()) : QStringList();
    if (names == m_names->stringList())
        return; // an edit outside the mapkeys: keep the view as it is
    m_names->setStringList(names);
    if (!current.isValid())
        return;
    const int row =
        currentRow < names.size() && names.at(currentRow) == currentName ? currentRow : int(names.indexOf(currentName));
    if (row >= 0)
        m_list->setCurrentIndex(m_names->index(row));
}

int MapkeyListWindow::findName(int row) {
    if (!m_document || row < 0 || row >= m_names->rowCount())
        return -1;
    const QString name = m_names->index(row).data().toString();
    return selectFirstLineContaining(*m_document, mapkeySearchText(name), Qt::CaseSensitive);
}

} // namespace quenfor
