#include "ui/compare/comparewindow.h"

#include "common/programfolders.h"
#include "compare/comparetexts.h"
#include "compare/configsource.h"
#include "compare/repeatableoptions.h"
#include "ui/compare/difftablemodel.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/formwidgets.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QLineEdit* fileField(const QString& name, const QString& text, QWidget* parent) {
    auto* field = new QLineEdit(text, parent);
    field->setObjectName(name);
    field->setClearButtonEnabled(true);
    return field;
}

} // namespace

CompareWindow::CompareWindow(const QString& fileA, const EncodingChoice& encoding, QWidget* parent)
    : QWidget(parent, Qt::Window), m_encoding(encoding) {
    setObjectName(u"frmVergleichen"_s);
    setWindowTitle(tr("Vergleichen"));

    m_fileA = fileField(u"txt_dateiA"_s, fileA, this);
    m_fileB = fileField(u"txt_dateiB"_s, {}, this);
    auto* labelA = new QLabel(tr("Datei &A (bisher):"), this);
    auto* labelB = new QLabel(tr("Datei &B (neu):"), this);
    labelA->setBuddy(m_fileA);
    labelB->setBuddy(m_fileB);
    auto* chooseA = namedButton(u"cmd_dateiA"_s, tr("Wählen…"), this);
    auto* chooseB = namedButton(u"cmd_dateiB"_s, tr("Wählen…"), this);
    chooseA->setToolTip(tr("Datei A auswählen"));
    chooseB->setToolTip(tr("Datei B auswählen"));
    connect(chooseA, &QPushButton::clicked, this, [this] { chooseFile(m_fileA, tr("Datei A wählen")); });
    connect(chooseB, &QPushButton::clicked, this, [this] { chooseFile(m_fileB, tr("Datei B wählen")); });
    auto* compareButton = namedButton(u"cmd_vergleichen"_s, tr("&Vergleichen"), this);
    compareButton->setDefault(true);
    connect(compareButton, &QPushButton::clicked, this, &CompareWindow::compare);
    connect(m_fileA, &QLineEdit::returnPressed, this, &CompareWindow::compare);
    connect(m_fileB, &QLineEdit::returnPressed, this, &CompareWindow::compare);

    m_summary = new QLabel(tr("Zwei Dateien wählen und \"Vergleichen\" drücken. Verglichen wird, was sie setzen: "
                              "Reihenfolge, Kommentare und Leerzeilen zählen nicht."),
                           this);
    m_summary->setObjectName(u"lbl_ergebnis"_s);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_model = new DiffTableModel(this);
    m_table = new QTableView(this);
    m_table->setObjectName(u"List_unterschiede"_s);
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 6);
    QHeaderView* header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(DiffTableModel::ValueAColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(DiffTableModel::ValueBColumn, QHeaderView::Stretch);
    header->resizeSection(DiffTableModel::ChangeColumn, 100);
    header->resizeSection(DiffTableModel::NameColumn, 220);
    header->resizeSection(DiffTableModel::LineAColumn, 64);
    header->resizeSection(DiffTableModel::LineBColumn, 64);

    auto* close = namedButton(u"cmd_schliessen"_s, tr("Schließen"), this);
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto* files = new QGridLayout;
    files->addWidget(labelA, 0, 0);
    files->addWidget(m_fileA, 0, 1);
    files->addWidget(chooseA, 0, 2);
    files->addWidget(labelB, 1, 0);
    files->addWidget(m_fileB, 1, 1);
    files->addWidget(chooseB, 1, 2);
    files->addWidget(compareButton, 0, 3, 2, 1);
    files->setColumnStretch(1, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_summary, 1);
    bottom->addWidget(close, 0, Qt::AlignBottom);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(files);
    layout->addWidget(m_table, 1);
    layout->addLayout(bottom);

    setTabOrder(m_fileA, chooseA);
    setTabOrder(chooseA, m_fileB);
    setTabOrder(m_fileB, chooseB);
    setTabOrder(chooseB, compareButton);
    setTabOrder(compareButton, m_table);
    setTabOrder(m_table, close);
    resize(960, 560);
    (fileA.isEmpty() ? m_fileA : m_fileB)->setFocus();
}

void CompareWindow::chooseFile(QLineEdit* field, const QString& title) {
    const QString start = field->text().isEmpty() ? m_fileA->text() : field->text();
    const QString path = Dialogs::openFile(this, title, QFileInfo(start).absolutePath(),
                                           tr("Konfigurationsdateien (*.pro *.sup *.dtl *.pcf);;Alle Dateien (*)"));
    if (!path.isEmpty())
        field->setText(QDir::toNativeSeparators(path));
}

void CompareWindow::compare() {
    const QString pathA = m_fileA->text().trimmed();
    const QString pathB = m_fileB->text().trimmed();
    m_model->setDiff({});
    showRed(m_summary, true);
    if (pathA.isEmpty() || pathB.isEmpty()) {
        m_summary->setText(tr("Bitte Datei A und Datei B angeben."));
        (pathA.isEmpty() ? m_fileA : m_fileB)->setFocus();
        return;
    }
    // Two files of a million lines take a second or two: the cursor says the window is busy.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    const ConfigSourceRead a = readConfigSource(pathA, m_encoding);
    if (!a.ok) {
        m_summary->setText(tr("Datei A: %1").arg(a.error));
        return;
    }
    const ConfigSourceRead b = readConfigSource(pathB, m_encoding);
    if (!b.ok) {
        m_summary->setText(tr("Datei B: %1").arg(b.error));
        return;
    }
    const RepeatableOptions repeatable = loadRepeatableOptions(programDataFolder());
    m_model->setDiff(diffConfigs(a.source.lines, b.source.lines, repeatable.names));
    showRed(m_summary, !repeatable.note.isEmpty());
    QString summary = diffSummaryText(m_model->diff());
    if (!repeatable.note.isEmpty())
        summary += u"\n"_s + repeatable.note;
    m_summary->setText(summary);
    if (m_model->rowCount() > 0) {
        m_table->setCurrentIndex(m_model->index(0, 0));
        m_table->setFocus();
    }
}

} // namespace quenfor
