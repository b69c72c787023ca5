#include "ui/knowledge/formopt.h"

#include "ui/knowledge/missingpathcolour.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include "document/configdocument.h"
#include "knowledge/pathoptions.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const char* const kIndexProperty = "pathOptionIndex";

int indexOf(const QObject* object) {
    const QVariant index = object->property(kIndexProperty);
    return index.isValid() ? index.toInt() : -1;
}

// Where a file or folder dialog opens: the typed folder, else the folder the typed file lies
// in, else the user's home. A relative value would depend on where the program was started.
QString browseStart(const QString& value) {
    const QFileInfo info(QDir::fromNativeSeparators(value));
    if (value.isEmpty() || info.isRelative())
        return QDir::homePath();
    if (info.isDir())
        return info.absoluteFilePath();
    if (info.dir().exists())
        return info.absolutePath();
    return QDir::homePath();
}

} // namespace

FormOpt::FormOpt(ConfigDocument* document, QWidget* parent) : QWidget(parent), m_document(document) {
    setObjectName(u"FormOpt"_s);
    setWindowFlag(Qt::Window);
    setWindowTitle(tr("config.pro Vorschlag – Pfadangaben"));
    buildWidgets();

    const QStringList stored = loadPathValues();
    for (int i = 0; i < int(m_entries.size()); ++i) {
        m_entries[i]->setText(stored.value(i));
        colourEntry(i); // an empty value sends no change but is missing all the same
    }
    resize(860, 660);
}

QStringList FormOpt::values() const {
    QStringList texts;
    for (const QLineEdit* entry : m_entries)
        texts.append(entry->text());
    return texts;
}

QString FormOpt::helpText() const {
    return m_help->toPlainText();
}

void FormOpt::buildWidgets() {
    auto* note = new QLabel(QString::fromUtf16(kPathOptionsNote), this);
    note->setObjectName(u"lbl_hinweis"_s);
    note->setWordWrap(true);

    m_status = new QLabel(this);
    m_status->setObjectName(u"lbl_status"_s);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_hints = new StatusHints(m_status, this);

    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(u"scroll_pfade"_s);
    scroll->setWidgetResizable(true);
    scroll->setWidget(buildOptionGrid());

    // A read-only text box rather than a label: a long help text in a narrow window scrolls
    // instead of being cut off.
    m_help = new QPlainTextEdit(this);
    m_help->setObjectName(u"txt_help"_s);
    m_help->setReadOnly(true);
    m_help->setPlaceholderText(tr("Ein Klick auf den Namen einer Option zeigt hier ihre Hilfe."));
    m_help->setFixedHeight(5 * fontMetrics().lineSpacing() + 2 * m_help->frameWidth() + 8);

    auto* joke = new QPushButton(u";-)"_s, this);
    joke->setObjectName(u"cmd_joke"_s);
    auto* all = new QPushButton(tr("alle einfügen"), this);
    all->setObjectName(u"cmd_alle"_s);
    auto* close = new QPushButton(tr("Schließen"), this);
    close->setObjectName(u"Command_pathclose"_s);
    m_hints->add(joke, tr("Ein kleiner Scherz."));
    m_hints->add(all, tr("Hängt alle 23 Optionen mit ihren Werten an die Liste an, ohne die Pfade zu prüfen."));
    m_hints->add(close, tr("Speichert alle Pfadangaben und schließt das Fenster."));

    connect(joke, &QPushButton::clicked, this, [this] { Dialogs::information(this, QString::fromUtf16(kJokeText)); });
    connect(all, &QPushButton::clicked, this, &FormOpt::insertAll);
    connect(close, &QPushButton::clicked, this, &FormOpt::close);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(joke);
    buttons->addWidget(m_status, 1);
    buttons->addWidget(all);
    buttons->addWidget(close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(note);
    layout->addWidget(scroll, 1);
    layout->addWidget(boldLabel(tr("Hilfe"), this));
    layout->addWidget(m_help);
    layout->addLayout(buttons);
}

QWidget* FormOpt::buildOptionGrid() {
    auto* grid = new QWidget;
    auto* layout = new QGridLayout(grid);
    layout->setColumnStretch(1, 1);
    layout->setHorizontalSpacing(8);
    const QList<PathOption>& options = pathOptions();
    for (int i = 0; i < int(options.size()); ++i) {
        const PathOption& option = options[i];

        auto* name = new QLabel(option.option, grid);
        name->setObjectName(u"lbl_"_s + option.option);
        name->setCursor(Qt::PointingHandCursor);
        name->setProperty(kIndexProperty, i);
        name->installEventFilter(this);
        m_hints->add(name, tr("Ein Klick zeigt die Hilfe zu %1.").arg(option.option));

        auto* entry = new QLineEdit(grid);
        entry->setObjectName(option.textBox);
        entry->setProperty(kIndexProperty, i);
        entry->setMinimumWidth(28 * fontMetrics().averageCharWidth());
        entry->installEventFilter(this);
        connect(entry, &QLineEdit::textChanged, this, [this, i] { colourEntry(i); });

        auto* insert = new QPushButton(u">>"_s, grid);
        insert->setObjectName(option.button);
        insert->setFixedWidth(insert->fontMetrics().horizontalAdvance(u">>"_s) + 24);
        m_hints->add(insert, tr("Hängt die Zeile %1 mit diesem Wert an die Liste an.").arg(option.option));
        connect(insert, &QPushButton::clicked, this, [this, i] { insertOne(i); });

        layout->addWidget(name, i, 0);
        layout->addWidget(entry, i, 1);
        if (option.test != ExistenceTest::None) {
            auto* browseButton = new QToolButton(grid);
            browseButton->setObjectName(u"browse_"_s + option.textBox);
            browseButton->setText(u"…"_s);
            m_hints->add(browseButton, option.test == ExistenceTest::Folder ? tr("Ein Verzeichnis auswählen.")
                                                                            : tr("Eine Datei auswählen."));
            connect(browseButton, &QToolButton::clicked, this, [this, i] { browse(i); });
            layout->addWidget(browseButton, i, 2);
        }
        layout->addWidget(insert, i, 3);

        m_names.append(name);
        m_entries.append(entry);
    }
    layout->setRowStretch(int(options.size()), 1);
    return grid;
}

bool FormOpt::eventFilter(QObject* watched, QEvent* event) {
    const bool clicked = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
                         m_names.contains(qobject_cast<QLabel*>(watched));
    const bool entered = event->type() == QEvent::FocusIn && m_entries.contains(qobject_cast<QLineEdit*>(watched));
    if (clicked || entered)
        showHelp(indexOf(watched));
    return QWidget::eventFilter(watched, event);
}

void FormOpt::closeEvent(QCloseEvent* event) {
    if (!storePathValues(values()))
        warnStoreFailed();
    QWidget::closeEvent(event);
}

void FormOpt::insertOne(int index) {
    if (!m_document)
        return;
    const PathInsertResult result = insertPathOption(*m_document, index, m_entries[index]->text());
    setStatus(tr("angehängt: %1").arg(result.line));
    if (!result.stored)
        warnStoreFailed();
    if (!result.warning.isEmpty())
        Dialogs::warning(this, result.warning);
}

void FormOpt::insertAll() {
    if (!m_document)
        return;
    const PathInsertAllResult result = insertAllPathOptions(*m_document, values());
    setStatus(tr("%1 Zeilen angehängt").arg(result.lines.size()));
    if (!result.stored)
        warnStoreFailed();
}

void FormOpt::browse(int index) {
    const PathOption& option = pathOptions().at(index);
    QLineEdit* entry = m_entries[index];
    const QString start = browseStart(entry->text());
    const QString chosen = option.test == ExistenceTest::Folder
                               ? Dialogs::chooseFolder(this, tr("Verzeichnis für %1 wählen").arg(option.option), start)
                               : Dialogs::openFile(this, tr("Datei für %1 wählen").arg(option.option), start);
    if (!chosen.isEmpty())
        entry->setText(QDir::toNativeSeparators(chosen));
}

void FormOpt::showHelp(int index) {
    if (index < 0 || index >= int(pathOptions().size()))
        return;
    m_help->setPlainText(pathOptions().at(index).help);
}

void FormOpt::colourEntry(int index) {
    QLineEdit* entry = m_entries.value(index);
    if (entry)
        showPathAsMissing(entry, !pathValueExists(pathOptions().at(index), entry->text()));
}

void FormOpt::warnStoreFailed() {
    Dialogs::warning(this, QString::fromUtf16(kPathStoreFailed).arg(pathStoreLocation()));
}

void FormOpt::setStatus(const QString& text) {
    m_status->setText(text);
}

} // namespace quenfor
