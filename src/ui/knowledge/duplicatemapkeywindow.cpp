#include "ui/knowledge/duplicatemapkeywindow.h"

#include "document/configdocument.h"
#include "knowledge/mapkeytools.h"
#include "ui/knowledge/mapkeylistview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

DuplicateMapkeyWindow::DuplicateMapkeyWindow(ConfigDocument* document, QWidget* parent)
    : QDialog(parent), m_document(document), m_entries(new QStringListModel(this)) {
    setObjectName(u"frm_mapkey"_s);
    setWindowTitle(tr("doppelte Mapkeys"));
    setModal(false);

    m_list = makeMapkeyListView(u"List5"_s, m_entries, this);
    connect(m_list, &QListView::doubleClicked, this, [this](const QModelIndex& index) { markEntry(index.row()); });
    auto* caption = new QLabel(tr("Doppelklick markiert Einträge"), this);
    caption->setBuddy(m_list);

    auto* tip = new QLabel(
        tr("Falls doppelte Mapkeys vorhanden sind, können diese durch einen Doppelklick markiert werden."), this);
    tip->setObjectName(u"lbl_tipp"_s);
    tip->setWordWrap(true);

    auto* markAllButton = new QPushButton(tr("Alle markieren"), this);
    markAllButton->setObjectName(u"cmd_selection"_s);
    markAllButton->setAutoDefault(false);
    connect(markAllButton, &QPushButton::clicked, this, &DuplicateMapkeyWindow::markAll);
    auto* closeButton = new QPushButton(tr("Schließen"), this);
    closeButton->setObjectName(u"cmd_exit"_s);
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &DuplicateMapkeyWindow::close);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(markAllButton);
    buttons->addStretch();
    buttons->addWidget(closeButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_list, 1);
    layout->addWidget(tip);
    layout->addLayout(buttons);
    resize(620, 360);
}

QString DuplicateMapkeyWindow::findDuplicates() {
    m_entries->setStringList(m_document ? duplicateMapkeyLines(m_document->lines()) : QStringList());
    if (m_entries->rowCount() == 0) {
        setWindowTitle(QString::fromUtf16(kNoDuplicateMapkeysCaption));
    } else {
        setWindowTitle(tr("doppelte Mapkeys"));
        show();
        raise();
        activateWindow();
    }
    return QString::fromUtf16(kSearchingDuplicateMapkeysStatus);
}

QStringList DuplicateMapkeyWindow::entries() const {
    return m_entries->stringList();
}

void DuplicateMapkeyWindow::markEntry(int row) {
    if (!m_document || row < 0 || row >= m_entries->rowCount())
        return;
    markDuplicateLines(*m_document, {m_entries->stringList().at(row)});
}

void DuplicateMapkeyWindow::markAll() {
    if (m_document)
        markDuplicateLines(*m_document, m_entries->stringList());
}

} // namespace quenfor
