#include "ui/cadfiles/tastomatwindow.h"

#include "ui/cadfiles/tastomatparameterdialog.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include "cadfiles/batchfilelist.h"
#include "cadfiles/doitfile.h"
#include "cadfiles/tastomatsettings.h"
#include "settings/mainsettings.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// A long list of left-out files is shortened: the first few say what is wrong.
constexpr qsizetype kProblemsShown = 8;

QString problemText(const QStringList& problems) {
    QStringList shown = problems.mid(0, kProblemsShown);
    if (problems.size() > kProblemsShown)
        shown << QObject::tr("... und %1 weitere").arg(problems.size() - kProblemsShown);
    return shown.join(u'\n');
}

} // namespace

TastomatWindow::TastomatWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(u"frmTastomat"_s);
    setWindowTitle(tr("Mapkey-Generator"));
    buildWidgets();

    const TastomatSettings settings = loadTastomatSettings();
    m_parameters = settings.parameters;
    for (const MapkeyTemplate& tmpl : std::as_const(m_parameters.templates))
        m_template->addItem(tmpl.name, tmpl.id);
    m_template->setCurrentIndex(qMax(0, m_template->findData(settings.templateId)));
    m_patterns->setCurrentText(settings.patterns);
    m_target->setText(settings.targetFolder);

    connect(m_folderTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                const QString path = QDir::toNativeSeparators(m_folderModel->filePath(current));
                if (!path.isEmpty() && path != m_folder)
                    setFolder(path);
            });
    connect(m_folderEdit, &QLineEdit::returnPressed, this, [this] { setFolder(m_folderEdit->text().trimmed()); });
    connect(m_patterns->lineEdit(), &QLineEdit::editingFinished, this, &TastomatWindow::listFiles);
    connect(m_patterns, &QComboBox::activated, this, &TastomatWindow::listFiles);
    connect(m_files, &QListWidget::itemSelectionChanged, this, &TastomatWindow::regenerate);
    connect(m_all, &QPushButton::clicked, this, &TastomatWindow::selectAllFiles);
    connect(m_none, &QPushButton::clicked, m_files, &QListWidget::clearSelection);
    connect(m_template, &QComboBox::currentIndexChanged, this, &TastomatWindow::regenerate);
    connect(m_parametersButton, &QPushButton::clicked, this, &TastomatWindow::editParameters);
    connect(m_chooseTarget, &QPushButton::clicked, this, &TastomatWindow::chooseTargetFolder);
    connect(m_write, &QPushButton::clicked, this, &TastomatWindow::writeDoit);
    connect(m_close, &QPushButton::clicked, this, &TastomatWindow::close);

    setFolder(settings.folder);
}

void TastomatWindow::buildWidgets() {
    m_status = new QLabel(this);
    m_status->setObjectName(u"lblstatus"_s);
    m_status->setFrameShape(QFrame::StyledPanel);
    m_status->setMinimumHeight(fontMetrics().lineSpacing() + 6);
    m_hints = new StatusHints(m_status, this);

    // Folders: the tree and the path, which can also be typed or pasted.
    m_folderModel = new QFileSystemModel(this);
    m_folderModel->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    m_folderModel->setRootPath(QString());
    m_folderTree = new QTreeView(this);
    m_folderTree->setObjectName(u"Dir1"_s);
    m_folderTree->setModel(m_folderModel);
    for (int column = 1; column < m_folderModel->columnCount(); ++column)
        m_folderTree->hideColumn(column);
    m_folderTree->setHeaderHidden(true);
    m_folderEdit = new QLineEdit(this);
    m_folderEdit->setObjectName(u"txt_ordner"_s);
    auto* folderBox = new QGroupBox(tr("Ordner"), this);
    auto* folderLayout = new QVBoxLayout(folderBox);
    folderLayout->addWidget(m_folderTree, 1);
    folderLayout->addWidget(m_folderEdit);

    // Files of the folder by pattern.
    m_patterns = new QComboBox(this);
    m_patterns->setObjectName(u"cbo_muster"_s);
    m_patterns->setEditable(true);
    m_patterns->setInsertPolicy(QComboBox::NoInsert);
    m_patterns->addItems({QString::fromUtf16(kDefaultBatchPatterns), u"*.prt"_s, u"*.asm"_s, u"*.drw"_s, u"*.*"_s});
    m_files = new QListWidget(this);
    m_files->setObjectName(u"List1"_s);
    m_files->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_files->setUniformItemSizes(true);
    m_count = new QLabel(this);
    m_count->setObjectName(u"lbl_anzahl"_s);
    m_all = new QPushButton(tr("Alle auswählen"), this);
    m_all->setObjectName(u"cmd_alle"_s);
    m_none = new QPushButton(tr("Keine auswählen"), this);
    m_none->setObjectName(u"cmd_keine"_s);
    auto* fileBox = new QGroupBox(tr("Dateien"), this);
    auto* patternRow = new QHBoxLayout;
    patternRow->addWidget(new QLabel(tr("Muster:"), this));
    patternRow->addWidget(m_patterns, 1);
    auto* selectRow = new QHBoxLayout;
    selectRow->addWidget(m_count, 1);
    selectRow->addWidget(m_all);
    selectRow->addWidget(m_none);
    auto* fileLayout = new QVBoxLayout(fileBox);
    fileLayout->addLayout(patternRow);
    fileLayout->addWidget(m_files, 1);
    fileLayout->addLayout(selectRow);

    auto* choose = new QSplitter(Qt::Horizontal, this);
    choose->addWidget(folderBox);
    choose->addWidget(fileBox);
    choose->setChildrenCollapsible(false);

    // The mapkeys and where they go.
    m_template = new QComboBox(this);
    m_template->setObjectName(u"cbo_vorlage"_s);
    m_parametersButton = new QPushButton(tr("Parameter..."), this);
    m_parametersButton->setObjectName(u"cmd_parameter"_s);
    m_preview = new QPlainTextEdit(this);
    m_preview->setObjectName(u"txt_mapkeys"_s);
    m_preview->setReadOnly(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_preview->setFont(fixed);
    // A whole line of the file is visible: 98 characters and the scroll bar.
    m_preview->setMinimumWidth(QFontMetrics(fixed).horizontalAdvance(QString(100, u'x')) + 24);
    m_problems = new QLabel(this);
    m_problems->setObjectName(u"lbl_probleme"_s);
    m_problems->setWordWrap(true);
    m_problems->setStyleSheet(u"color: #c00000;"_s);
    m_problems->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problems->hide();
    m_target = new QLineEdit(this);
    m_target->setObjectName(u"txt_ziel"_s);
    m_target->setPlaceholderText(tr("leer: der Ordner der Dateien"));
    m_chooseTarget = new QPushButton(tr("Wählen..."), this);
    m_chooseTarget->setObjectName(u"cmd_ziel"_s);
    m_write = new QPushButton(tr("doit.pro schreiben"), this);
    m_write->setObjectName(u"cmd_schreiben"_s);
    m_close = new QPushButton(tr("Schließen"), this);
    m_close->setObjectName(u"cmd_exit"_s);

    auto* mapkeyBox = new QGroupBox(tr("Mapkeys"), this);
    auto* templateRow = new QHBoxLayout;
    templateRow->addWidget(new QLabel(tr("Vorlage:"), this));
    templateRow->addWidget(m_template, 1);
    templateRow->addWidget(m_parametersButton);
    auto* targetRow = new QHBoxLayout;
    targetRow->addWidget(new QLabel(tr("Zielordner:"), this));
    targetRow->addWidget(m_target, 1);
    targetRow->addWidget(m_chooseTarget);
    targetRow->addWidget(m_write);
    auto* mapkeyLayout = new QVBoxLayout(mapkeyBox);
    mapkeyLayout->addLayout(templateRow);
    mapkeyLayout->addWidget(m_preview, 1);
    mapkeyLayout->addWidget(m_problems);
    mapkeyLayout->addLayout(targetRow);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_status, 1);
    bottom->addWidget(m_close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(choose, 2);
    layout->addWidget(mapkeyBox, 3);
    layout->addLayout(bottom);
    resize(960, 660);

    m_hints->add(m_folderTree, tr("Ordner mit den Dateien, für die Mapkeys erzeugt werden"));
    m_hints->add(m_folderEdit, tr("Pfad des Ordners; mit Enter übernehmen"));
    m_hints->add(m_patterns, tr("Dateimuster, mehrere durch \";\" getrennt, z. B. *.prt;*.asm;*.drw"));
    m_hints->add(m_files,
                 tr("Jede ausgewählte Datei bekommt einen Mapkey; Versionen (.1, .2 ...) sind zusammengefasst"));
    m_hints->add(m_template, tr("Was jeder Mapkey mit seiner Datei tut"));
    m_hints->add(m_parametersButton,
                 tr("Tasten-Präfix, erste Nummer, Sammel-Mapkey und die Befehle der Vorlagen einstellen"));
    m_hints->add(m_target, tr("Ordner, in den doit.pro geschrieben wird"));
    m_hints->add(m_chooseTarget, tr("Ordner für doit.pro wählen"));
    m_hints->add(m_write, tr("Schreibt die Mapkeys als doit.pro in den Zielordner"));
    m_hints->add(m_close, tr("Schließt den Mapkey-Generator"));
}

void TastomatWindow::setFolder(const QString& folder) {
    m_folder = QDir::toNativeSeparators(folder);
    m_folderEdit->setText(m_folder);
    const QModelIndex index = m_folderModel->index(QDir::fromNativeSeparators(m_folder));
    if (index.isValid()) {
        const QSignalBlocker blocker(m_folderTree->selectionModel());
        m_folderTree->setCurrentIndex(index);
        m_folderTree->scrollTo(index);
    }
    listFiles();
}

void TastomatWindow::setPatterns(const QString& patterns) {
    m_patterns->setCurrentText(patterns);
    listFiles();
}

QString TastomatWindow::patterns() const {
    return m_patterns->currentText();
}

QStringList TastomatWindow::listedFiles() const {
    QStringList names;
    for (int row = 0; row < m_files->count(); ++row)
        names << m_files->item(row)->text();
    return names;
}

QStringList TastomatWindow::selectedFiles() const {
    QStringList names;
    for (int row = 0; row < m_files->count(); ++row) {
        if (m_files->item(row)->isSelected())
            names << m_files->item(row)->text();
    }
    return names;
}

void TastomatWindow::selectAllFiles() {
    m_files->selectAll();
}

void TastomatWindow::selectFiles(const QStringList& names) {
    const QSignalBlocker blocker(m_files);
    m_files->clearSelection();
    for (int row = 0; row < m_files->count(); ++row)
        m_files->item(row)->setSelected(names.contains(m_files->item(row)->text()));
    regenerate();
}

void TastomatWindow::setTemplateId(const QString& id) {
    const int index = m_template->findData(id);
    if (index >= 0)
        m_template->setCurrentIndex(index);
}

QString TastomatWindow::templateId() const {
    return m_template->currentData().toString();
}

void TastomatWindow::setParameters(const BatchParameters& parameters) {
    m_parameters = parameters;
    regenerate();
}

void TastomatWindow::setTargetFolder(const QString& folder) {
    m_target->setText(QDir::toNativeSeparators(folder));
}

void TastomatWindow::editParameters() {
    TastomatParameterDialog dialog(m_parameters, templateId(), this);
    if (dialog.exec() == QDialog::Accepted) {
        setParameters(dialog.parameters());
        showStatus(tr("Parameter übernommen"));
    }
}

bool TastomatWindow::writeDoit() {
    if (m_result.lines.isEmpty()) {
        Dialogs::information(this, m_result.problems.isEmpty() ? tr("Es gibt keine Mapkeys zum Schreiben.")
                                                               : problemText(m_result.problems));
        return false;
    }
    if (!m_result.problems.isEmpty() &&
        Dialogs::warning(this, tr("Nicht jede ausgewählte Datei bekommt einen Mapkey:\n%1\n\ndoit.pro trotzdem "
                                  "schreiben ?")
                                   .arg(problemText(m_result.problems))) != Dialogs::Answer::Ok)
        return false;

    const QString target = m_target->text().trimmed().isEmpty() ? m_folder : m_target->text().trimmed();
    const QString path = doitPath(target);
    if (QFileInfo(path).isFile() && Dialogs::question(this, doitOverwriteQuestion(path)) != Dialogs::Answer::Yes)
        return false;

    const DoitWriteResult written =
        writeDoitFile(target, m_result.lines, TextEncoding::codepageNamed(settingValue(Setting::Codepage)));
    if (!written.ok) {
        showStatus(tr("doit.pro wurde nicht geschrieben"));
        Dialogs::information(this, written.error);
        return false;
    }
    showStatus(tr("%1 geschrieben: %2 Mapkeys").arg(written.path).arg(m_result.mapkeyCount()));
    return true;
}

void TastomatWindow::closeEvent(QCloseEvent* event) {
    TastomatSettings settings;
    settings.folder = m_folder;
    settings.patterns = patterns();
    settings.templateId = templateId();
    settings.targetFolder = m_target->text().trimmed();
    settings.parameters = m_parameters;
    storeTastomatSettings(settings);
    event->accept();
}

void TastomatWindow::listFiles() {
    const BatchFileList list = listBatchFiles(m_folder, patterns());
    {
        const QSignalBlocker blocker(m_files);
        m_files->clear();
        m_files->addItems(list.names);
        // The usual batch takes every file; the user takes out the few that should not run.
        m_files->selectAll();
    }
    regenerate();
    if (!list.error.isEmpty()) {
        m_problems->setText(list.error);
        m_problems->show();
    }
}

void TastomatWindow::regenerate() {
    const QString id = templateId();
    MapkeyTemplate chosen;
    for (const MapkeyTemplate& tmpl : std::as_const(m_parameters.templates)) {
        if (tmpl.id == id)
            chosen = tmpl;
    }
    const QStringList selected = selectedFiles();
    m_result = generateBatchMapkeys(m_folder, selected, chosen, m_parameters);
    m_preview->setPlainText(m_result.lines.join(u'\n'));
    // Nothing chosen is no fault: the count says it.
    const bool quiet = selected.isEmpty() && !m_result.parametersRefused;
    m_problems->setText(quiet ? QString() : problemText(m_result.problems));
    m_problems->setVisible(!quiet && !m_result.problems.isEmpty());
    m_count->setText(tr("%1 Dateien, %2 ausgewählt, %3 Mapkeys")
                         .arg(m_files->count())
                         .arg(selected.size())
                         .arg(m_result.mapkeyCount()));
    m_write->setEnabled(!m_result.lines.isEmpty());
}

void TastomatWindow::chooseTargetFolder() {
    const QString start = m_target->text().trimmed().isEmpty() ? m_folder : m_target->text().trimmed();
    const QString chosen = Dialogs::chooseFolder(this, tr("Ordner für doit.pro"), start);
    if (!chosen.isEmpty())
        setTargetFolder(chosen);
}

void TastomatWindow::showStatus(const QString& text) {
    m_status->setText(text);
}

} // namespace quenfor
