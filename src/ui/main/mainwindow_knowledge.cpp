// The option picker, the Erklär-Bär and the sort by category in the main window.
#include "ui/main/mainwindow.h"

#include "document/cleanuptools.h"
#include "document/configdocument.h"
#include "document/documentsearch.h"
#include "document/pathmarker.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"
#include "knowledge/explanation.h"
#include "knowledge/knowledgebase.h"
#include "knowledge/picker.h"
#include "settings/mainsettings.h"
#include "ui/knowledge/explanationpanel.h"
#include "ui/knowledge/pickerpanel.h"
#include "ui/main/entrylinepanel.h"
#include "ui/main/searchdialog.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include <QAction>
#include <QCheckBox>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {
constexpr int kBrainDialogRightTwips = 4000;
constexpr int kBrainDialogDownTwips = 5000;
} // namespace

void MainWindow::connectKnowledge() {
    m_picker->registerHints(*m_hints);
    QCheckBox* check = m_picker->explainCheck();
    check->setChecked(settingValue(Setting::ChkErklaerbaer) == u"1");
    connect(check, &QCheckBox::toggled, this,
            [](bool on) { setSettingValue(Setting::ChkErklaerbaer, on ? u"1"_s : u"0"_s); });

    connect(m_picker, &PickerPanel::entryClicked, this, &MainWindow::pickerEntryClicked);
    connect(m_picker, &PickerPanel::entryDoubleClicked, this, [this](const QString& text) {
        m_document->appendLine(text);
        m_entry->setText(text);
    });
    connect(m_picker, &PickerPanel::takeOverClicked, this, &MainWindow::takeOverSelection);
    connect(m_picker, &PickerPanel::explainClicked, this, &MainWindow::explainEntryLine);
    connect(m_picker, &PickerPanel::brainRequested, this, &MainWindow::showKnowledgeSearch);
    connect(m_picker, &PickerPanel::brainClicked, this, [this] {
        m_picker->showBrain(false);
        explainEntryLine();
    });
    connect(m_picker, &PickerPanel::statusMessage, this,
            [this](const QString& text) { Dialogs::information(this, text); });
    connect(m_picker, &PickerPanel::sortByCategoryClicked, this,
            [this] { sortByCategory(QString::fromUtf16(kCategorySortRefusedButton)); });
    connect(m_menus.action(u"mnuKategorien"_s), &QAction::triggered, this,
            [this] { sortByCategory(QString::fromUtf16(kCategorySortRefusedMenu)); });
}

void MainWindow::explainEntryLine() {
    const QString entry = m_entry->text();
    const Explanation explanation =
        quenfor::explainEntryLine(entry, m_picker->knowledgeBasePath(), {settingValue(Setting::Codepage), false});
    if (explanation.kind != Explanation::Kind::Option) {
        // Blank lines, comments, mapkeys and favourites have a fixed text: it goes into the panel,
        // but only an option line opens it.
        explanationPanel()->setExplanation(explanation.text);
        m_picker->showFolder(QString());
        return;
    }
    if (explanation.knowledgeBaseMissing) {
        Dialogs::critical(this, QString::fromUtf16(kKnowledgeBaseMissing));
        m_picker->explainCheck()->setChecked(false);
        return;
    }
    if (!explanation.error.isEmpty()) {
        Dialogs::information(this, explanation.error);
        return;
    }
    explanationPanel()->showExplanation(explanation.text);
    m_picker->showFolder(optionValueFolder(entry));
}

ExplanationPanel* MainWindow::explanationPanel() {
    if (m_explanation)
        return m_explanation;
    m_explanation = new ExplanationPanel(this);
    m_explanation->setAttribute(Qt::WA_DeleteOnClose);
    m_explanation->registerHints(*m_hints);
    connect(m_explanation, &ExplanationPanel::okClicked, this, [this] { m_picker->explainCheck()->setChecked(false); });
    connect(m_explanation, &ExplanationPanel::feedRequested, this, [this](const QString& text) {
        const AppendResult added = appendKnowledgeRecord(m_picker->knowledgeBasePath(), m_entry->text(), text,
                                                         {settingValue(Setting::Codepage), false});
        if (!added.ok) {
            Dialogs::information(this, added.error);
            return;
        }
        Dialogs::information(this, QString::fromUtf16(kKnowledgeBaseAdded));
        m_explanation->feedingDone();
    });
    return m_explanation;
}

void MainWindow::pickerEntryClicked(const QString& text) {
    m_entry->setText(text);
    if (m_picker->explainCheck()->isChecked()) {
        explainEntryLine();
        if (QListWidget* picker = m_picker->visiblePicker())
            picker->setFocus();
    } else if (m_explanation) {
        m_explanation->close();
    }
}

void MainWindow::takeOverSelection(const QString& pickerList) {
    setStatus(QString::fromUtf16(kTakeOverStatus));
    const QStringList lines = quenfor::takeOverSelection(
        m_document->fileName(), pickerList, m_picker->entries(pickerList), m_picker->selectedRows(pickerList));
    m_document->appendLines(lines);
}

void MainWindow::showKnowledgeSearch() {
    m_picker->showBrain(true);
    showSearchDialog();
    m_searchDialog->setSearchInKnowledgeBase(true);
    m_searchDialog->move(pos() + QPoint(twipsToPixels(kBrainDialogRightTwips), twipsToPixels(kBrainDialogDownTwips)));
}

void MainWindow::sortByCategory(const QString& refusal) {
    if (categorySortRefuses(m_document->fileName())) {
        Dialogs::information(this, refusal);
        return;
    }
    if (Dialogs::question(this, QString::fromUtf16(kCategorySortQuestion)) != Dialogs::Answer::Yes)
        return;
    // Each category is selected in turn, so the combo and the picker stay on the last one.
    runWholeDocumentTool([this] {
        m_document->replaceAll(quenfor::sortByCategory(m_document->lines(), CategoryTable::builtIn(),
                                                       [this](int index) { m_picker->showSortedCategory(index); }));
        return QString::fromUtf16(kRemovingDuplicatesStatus);
    });
}

} // namespace quenfor
