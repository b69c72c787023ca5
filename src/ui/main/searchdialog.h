#pragma once

#include "document/documentfile.h"

#include <QDialog>
#include <QPointer>
#include <QStringList>

class QLabel;
class QLineEdit;
class QListView;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTimer;

namespace quenfor {

class ConfigDocument;
class SearchHitModel;

// The search window: finds a term in the open document or in the active knowledge base file and
// lists the hits. A document hit is selected, marked and brought into view in the main list;
// "Weitersuchen" goes on from the last hit and starts again at the top after the last line.
// It does not block the main window.
class SearchDialog : public QDialog {
    Q_OBJECT

public:
    explicit SearchDialog(ConfigDocument* document, QWidget* parent = nullptr);

    void setKnowledgeBasePath(const QString& path);
    QString knowledgeBasePath() const { return m_knowledgeBasePath; }
    void setSearchInKnowledgeBase(bool on);
    bool searchesKnowledgeBase() const;
    void setTerm(const QString& term);
    // The code page for a knowledge base file that is not UTF-8 (the Codepage setting).
    void setEncodingChoice(const EncodingChoice& choice) { m_encoding = choice; }

    // "Suchen": lists every hit and shows the first.
    void search();
    // "Weitersuchen": the next hit after the last one shown; a changed term searches anew.
    void searchNext();

private:
    void buildWidgets();
    void searchInDocument(const QString& term);
    void searchInKnowledgeBase(const QString& term);
    void showHits(const QStringList* source, QList<int> lines, int numberBase, const QString& term);
    void showHitRow(int row);
    void onCurrentHitChanged();
    void refreshDocumentHits();
    void forgetHits();
    void setStatus(const QString& text);

    QPointer<ConfigDocument> m_document;
    QString m_knowledgeBasePath;
    EncodingChoice m_encoding;

    QStringList m_knowledgeBaseLines; // the file as last searched, for the lines after a hit
    QString m_searchedTerm;           // empty: no hits are listed
    int m_lastLine = -1;              // line of the hit shown last
    bool m_refreshing = false;        // hits are rebuilt after an edit: leave the document alone

    SearchHitModel* m_hits;
    QTimer* m_refreshTimer;
    QLineEdit* m_term = nullptr;
    QRadioButton* m_inDocument = nullptr;
    QRadioButton* m_inKnowledgeBase = nullptr;
    QPushButton* m_searchButton = nullptr;
    QPushButton* m_nextButton = nullptr;
    QListView* m_hitList = nullptr;
    QPlainTextEdit* m_preview = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace quenfor
