#include "ui/main/searchdialog.h"

#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "ui/widgets/dialogs.h"
#include "ui/main/searchhitmodel.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The knowledge base shows an option's line and the five lines after it as its description.
constexpr int kDescriptionLines = 5;
// The preview shows a huge line's beginning; the whole of it would only stall the window.
constexpr qsizetype kPreviewCharacters = 20000;

QString previewText(const QString& text) {
    return text.size() > kPreviewCharacters ? text.left(kPreviewCharacters) + u'…' : text;
}

} // namespace

SearchDialog::SearchDialog(ConfigDocument* document, QWidget* parent)
    : QDialog(parent), m_document(document), m_hits(new SearchHitModel(this)), m_refreshTimer(new QTimer(this)) {
    setObjectName(u"frm_such"_s);
    setWindowTitle(tr("Suchen"));
    setModal(false);
    buildWidgets();

    // Edits in the main window move or remove lines; the hit list follows once the edit is done.
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(0);
    connect(m_refreshTimer, &QTimer::timeout, this, &SearchDialog::refreshDocumentHits);
    if (m_document) {
        const auto changed = [this] {
            if (!m_searchedTerm.isEmpty() && !searchesKnowledgeBase())
                m_refreshTimer->start();
        };
        // The last hit moves with its line, so "Weitersuchen" goes on from the same place.
        connect(m_document, &ConfigDocument::resetDone, this, [this, changed] {
            m_lastLine = -1;
            changed();
        });
        connect(m_document, &ConfigDocument::linesInserted, this, [this, changed](int first, int last) {
            if (m_lastLine >= first)
                m_lastLine += last - first + 1;
            changed();
        });
        connect(m_document, &ConfigDocument::linesRemoved, this, [this, changed](int first, int last) {
            if (m_lastLine > last)
                m_lastLine -= last - first + 1;
            else if (m_lastLine >= first)
                m_lastLine = first - 1;
            changed();
        });
        connect(m_document, &ConfigDocument::linesChanged, this, changed);
    }
}

void SearchDialog::buildWidgets() {
    m_term = new QLineEdit(this);
    m_term->setObjectName(u"txt_such"_s);
    m_term->setClearButtonEnabled(true);
    auto* termLabel = new QLabel(tr("Suchbegriff:"), this);
    termLabel->setBuddy(m_term);

    m_inDocument = new QRadioButton(tr("Suche im Dokument"), this);
    m_inDocument->setObjectName(u"opt_dokument"_s);
    m_inDocument->setChecked(true);
    m_inKnowledgeBase = new QRadioButton(tr("Suche in ErklärBär´s Hirn"), this);
    m_inKnowledgeBase->setObjectName(u"opt_hirn"_s);
    connect(m_inKnowledgeBase, &QRadioButton::toggled, this, &SearchDialog::forgetHits);

    m_searchButton = new QPushButton(tr("Suchen"), this);
    m_searchButton->setObjectName(u"cmd_suchen"_s);
    m_searchButton->setDefault(true);
    connect(m_searchButton, &QPushButton::clicked, this, &SearchDialog::search);
    m_nextButton = new QPushButton(tr("Weitersuchen"), this);
    m_nextButton->setObjectName(u"cmd_weiter"_s);
    m_nextButton->setAutoDefault(false);
    connect(m_nextButton, &QPushButton::clicked, this, &SearchDialog::searchNext);
    auto* closeButton = new QPushButton(tr("Schließen"), this);
    closeButton->setObjectName(u"cmd_exit"_s);
    closeButton->setAutoDefault(false);
    connect(closeButton, &QPushButton::clicked, this, &SearchDialog::close);

    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_hitList = new QListView(this);
    m_hitList->setObjectName(u"lst_treffer"_s);
    m_hitList->setModel(m_hits);
    m_hitList->setUniformItemSizes(true);
    m_hitList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_hitList->setFont(fixed);
    connect(m_hitList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SearchDialog::onCurrentHitChanged);
    auto* hitLabel = new QLabel(tr("Treffer:"), this);
    hitLabel->setBuddy(m_hitList);

    m_preview = new QPlainTextEdit(this);
    m_preview->setObjectName(u"txt_anzeige"_s);
    m_preview->setReadOnly(true);
    m_preview->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_preview->setFont(fixed);
    m_preview->setFixedHeight(m_preview->fontMetrics().lineSpacing() * (kDescriptionLines + 2) + 8);

    m_status = new QLabel(this);
    m_status->setObjectName(u"lbl_status"_s);
    m_status->setWordWrap(true);

    auto* top = new QGridLayout;
    top->addWidget(termLabel, 0, 0);
    top->addWidget(m_term, 0, 1);
    top->addWidget(m_searchButton, 0, 2);
    top->addWidget(m_inDocument, 1, 1);
    top->addWidget(m_nextButton, 1, 2);
    top->addWidget(m_inKnowledgeBase, 2, 1);
    top->setColumnStretch(1, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(closeButton, 0, Qt::AlignBottom);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addSpacing(6);
    layout->addWidget(hitLabel);
    layout->addWidget(m_hitList, 1);
    layout->addWidget(m_preview);
    layout->addLayout(bottom);
    resize(560, 460);
}

void SearchDialog::setKnowledgeBasePath(const QString& path) {
    if (path == m_knowledgeBasePath)
        return;
    m_knowledgeBasePath = path;
    if (searchesKnowledgeBase())
        forgetHits();
}

void SearchDialog::setSearchInKnowledgeBase(bool on) {
    (on ? m_inKnowledgeBase : m_inDocument)->setChecked(true);
}

bool SearchDialog::searchesKnowledgeBase() const {
    return m_inKnowledgeBase->isChecked();
}

void SearchDialog::setTerm(const QString& term) {
    m_term->setText(term);
}

void SearchDialog::search() {
    const QString term = m_term->text();
    forgetHits();
    if (term.isEmpty()) {
        setStatus(tr("Bitte einen Suchbegriff eingeben."));
        return;
    }
    if (searchesKnowledgeBase())
        searchInKnowledgeBase(term);
    else
        searchInDocument(term);
}

void SearchDialog::searchInDocument(const QString& term) {
    if (!m_document)
        return;
    showHits(&m_document->lines(), findAllLines(m_document->lines(), term), 0, term);
}

void SearchDialog::searchInKnowledgeBase(const QString& term) {
    KnowledgeSearch found = quenfor::searchKnowledgeBase(m_knowledgeBasePath, term, m_encoding);
    if (!found.ok) {
        Dialogs::information(this, found.error);
        return;
    }
    m_knowledgeBaseLines = std::move(found.lines);
    QList<int> lines;
    lines.reserve(found.hits.size());
    for (const KnowledgeHit& hit : std::as_const(found.hits))
        lines.append(hit.lineNumber - 1);
    showHits(&m_knowledgeBaseLines, std::move(lines), 1, term);
}

void SearchDialog::showHits(const QStringList* source, QList<int> lines, int numberBase, const QString& term) {
    m_searchedTerm = term;
    m_hits->setHits(source, std::move(lines), numberBase);
    if (m_hits->rowCount() == 0) {
        setStatus(tr("„%1“ wurde nicht gefunden.").arg(term));
        return;
    }
    showHitRow(0);
}

void SearchDialog::searchNext() {
    const QString term = m_term->text();
    if (term.isEmpty() || term != m_searchedTerm) {
        search();
        return;
    }
    if (m_refreshTimer->isActive()) {
        m_refreshTimer->stop();
        refreshDocumentHits();
    }
    const int count = m_hits->rowCount();
    if (count == 0) {
        setStatus(tr("„%1“ wurde nicht gefunden.").arg(term));
        return;
    }
    int row = 0;
    bool wrapped = false;
    if (searchesKnowledgeBase()) {
        const int current = m_hitList->currentIndex().row();
        row = (current + 1) % count;
        wrapped = current >= 0 && row <= current;
    } else if (m_document) {
        const LineHit hit = findNextLine(m_document->lines(), term, m_lastLine);
        row = qMax(0, m_hits->rowOf(hit.index));
        wrapped = hit.wrapped;
    }
    showHitRow(row);
    if (wrapped)
        setStatus(m_status->text() + u' ' + tr("Suche am Anfang fortgesetzt."));
}

void SearchDialog::showHitRow(int row) {
    const QModelIndex index = m_hits->index(row);
    if (m_hitList->currentIndex() == index) {
        onCurrentHitChanged(); // the same hit again: show it once more
    } else {
        m_hitList->setCurrentIndex(index);
    }
    m_hitList->scrollTo(index);
}

void SearchDialog::onCurrentHitChanged() {
    const QModelIndex current = m_hitList->currentIndex();
    if (!current.isValid())
        return;
    const int line = m_hits->lineAt(current.row());
    m_lastLine = line;
    setStatus(tr("Treffer %1 von %2").arg(current.row() + 1).arg(m_hits->rowCount()));

    if (searchesKnowledgeBase()) {
        const QStringList block = m_knowledgeBaseLines.mid(line, kDescriptionLines + 1);
        m_preview->setPlainText(previewText(block.join(u'\n')));
        return;
    }
    if (!m_document || line >= m_document->count())
        return;
    m_preview->setPlainText(previewText(m_document->line(line)));
    if (!m_refreshing)
        selectAndShowLine(*m_document, line);
}

void SearchDialog::refreshDocumentHits() {
    if (!m_document || m_searchedTerm.isEmpty() || searchesKnowledgeBase())
        return;
    m_refreshing = true;
    const int lastLine = m_lastLine;
    m_hits->setHits(&m_document->lines(), findAllLines(m_document->lines(), m_searchedTerm), 0);
    m_preview->clear();
    const int row = m_hits->rowOf(lastLine);
    if (row >= 0) {
        m_hitList->setCurrentIndex(m_hits->index(row));
        m_hitList->scrollTo(m_hits->index(row));
    } else if (m_hits->rowCount() == 0) {
        setStatus(tr("„%1“ wurde nicht gefunden.").arg(m_searchedTerm));
    } else {
        setStatus(tr("%n Treffer", nullptr, m_hits->rowCount()));
    }
    m_refreshing = false;
}

void SearchDialog::forgetHits() {
    m_refreshTimer->stop();
    m_searchedTerm.clear();
    m_lastLine = -1;
    m_hits->clear();
    m_knowledgeBaseLines.clear();
    m_preview->clear();
    setStatus(QString());
}

void SearchDialog::setStatus(const QString& text) {
    m_status->setText(text);
}

} // namespace quenfor
