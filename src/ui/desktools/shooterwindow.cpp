#include "ui/desktools/shooterwindow.h"

#include "desktools/processhunt.h"
#include "desktools/shootersettings.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/statushints.h"
#include "ui/desktools/windowtitle.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QToolButton* makeFoldButton(const QString& name, Qt::ArrowType arrow, const QString& caption, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setText(caption);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    return button;
}

QLabel* makeCounter(const QString& name, QWidget* parent) {
    auto* label = new QLabel(u"0"_s, parent);
    label->setObjectName(name);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(u"0000000"_s));
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

} // namespace

ShooterWindow::ShooterWindow(QWidget* parent, std::unique_ptr<ProcessTable> table)
    : QWidget(parent, Qt::Window), m_table(table ? std::move(table) : makeSystemProcessTable()) {
    setObjectName(u"frmShooter"_s);
    setWindowTitle(tr("Shooter"));
    m_hunt = new ProcessHunt(*m_table, this);
    buildWidgets();
    m_prefix->setText(loadHuntPrefix());

    connect(m_hunt, &ProcessHunt::runningChanged, this, &ShooterWindow::showHuntState);
    connect(m_hunt, &ProcessHunt::scanned, this, &ShooterWindow::showScan);
    // Whatever is hunted must be what the field says: a change stops the hunt.
    connect(m_prefix, &QLineEdit::textChanged, this, &ShooterWindow::stopHunt);
    showHuntState(false);
    m_status->clear();
    resize(460, height());
    setListOpen(false);
}

ShooterWindow::~ShooterWindow() {
    // The hunt is a child and outlives the table it works on by a moment.
    m_hunt->stop();
}

void ShooterWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    m_prefix = new QLineEdit(this);
    m_prefix->setObjectName(u"txt_kill"_s);
    m_hints->add(m_prefix, tr("Anfang des Programmnamens, genau so geschrieben: Groß- und Kleinschreibung zählt."));
    m_kill = namedButton(u"cmd_kill"_s, tr("Start"), this);
    connect(m_kill, &QPushButton::clicked, this, &ShooterWindow::startHunt);
    m_hints->add(m_kill, tr("Beendet zehnmal in der Sekunde jeden Prozess, dessen Name so beginnt, bis zum Stopp."));
    m_stop = namedButton(u"cmd_stopkill"_s, tr("Stopp"), this);
    connect(m_stop, &QPushButton::clicked, this, &ShooterWindow::stopHunt);
    m_hints->add(m_stop, tr("Hält die Jagd an."));
    m_scans = makeCounter(u"lbl_counter"_s, this);
    m_kills = makeCounter(u"lbl_killcounter"_s, this);
    m_openList = makeFoldButton(u"Image_Klapp"_s, Qt::DownArrow, tr("Prozessliste"), this);
    connect(m_openList, &QToolButton::clicked, this, [this] { setListOpen(true); });
    m_hints->add(m_openList, tr("Zeigt die laufenden Prozesse."));

    auto* hunt = new QGridLayout;
    hunt->addWidget(new QLabel(tr("Programmname beginnt mit:"), this), 0, 0, 1, 4);
    hunt->addWidget(m_prefix, 1, 0, 1, 2);
    hunt->addWidget(m_kill, 1, 2);
    hunt->addWidget(m_stop, 1, 3);
    auto* counters = new QHBoxLayout;
    counters->addWidget(new QLabel(tr("Durchläufe:"), this));
    counters->addWidget(m_scans);
    counters->addSpacing(24);
    counters->addWidget(new QLabel(tr("beendet:"), this));
    counters->addWidget(m_kills);
    counters->addStretch(1);
    hunt->addLayout(counters, 2, 0, 1, 4);
    hunt->setColumnStretch(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(hunt);
    layout->addWidget(m_openList, 0, Qt::AlignLeft);
    layout->addWidget(buildListPanel(), 1);
    layout->addWidget(m_status);
}

QWidget* ShooterWindow::buildListPanel() {
    m_listPanel = new QFrame(this);
    m_listPanel->setObjectName(u"Frame_Liste"_s);
    auto* close = makeFoldButton(u"Image_ZU"_s, Qt::UpArrow, tr("Prozessliste"), m_listPanel);
    connect(close, &QToolButton::clicked, this, [this] { setListOpen(false); });
    m_hints->add(close, tr("Klappt die Liste zu."));
    auto* refresh = namedButton(u"cmd_refresh"_s, tr("aktualisieren"), m_listPanel);
    connect(refresh, &QPushButton::clicked, this, &ShooterWindow::refreshList);
    m_hints->add(refresh, tr("Liest die laufenden Prozesse neu ein."));
    m_processes = new QListWidget(m_listPanel);
    m_processes->setObjectName(u"List1"_s);
    m_processes->setUniformItemSizes(true);
    m_processes->setMinimumHeight(12 * fontMetrics().lineSpacing());
    connect(m_processes, &QListWidget::currentRowChanged, this, &ShooterWindow::showWindowTitle);
    m_hints->add(m_processes, tr("Ein Klick zeigt den Titel des Hauptfensters des Prozesses."));
    m_windowTitle = new QLabel(m_listPanel);
    m_windowTitle->setObjectName(u"lbl_FensterName"_s);
    m_windowTitle->setWordWrap(true);
    m_windowTitle->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_windowTitle->setFrameShape(QFrame::StyledPanel);
    m_windowTitle->setMinimumHeight(2 * fontMetrics().lineSpacing() + 6);
    m_windowTitle->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* top = new QHBoxLayout;
    top->addWidget(close);
    top->addStretch(1);
    top->addWidget(refresh);
    auto* layout = new QVBoxLayout(m_listPanel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_processes, 1);
    layout->addWidget(new QLabel(tr("Fenstertitel:"), m_listPanel));
    layout->addWidget(m_windowTitle);
    return m_listPanel;
}

void ShooterWindow::startHunt() {
    const QString refusal = m_hunt->start(m_prefix->text());
    if (!refusal.isEmpty())
        Dialogs::information(this, refusal);
}

void ShooterWindow::stopHunt() {
    m_hunt->stop();
}

bool ShooterWindow::isHunting() const {
    return m_hunt->isRunning();
}

void ShooterWindow::showHuntState(bool running) {
    m_kill->setEnabled(!running);
    m_stop->setEnabled(running);
    m_status->setText(
        running
            ? tr("Die Jagd läuft: Jeder Prozess, dessen Name mit \"%1\" beginnt, wird beendet.").arg(m_hunt->prefix())
            : tr("Die Jagd ist angehalten."));
}

void ShooterWindow::showScan(const HuntTick& tick) {
    m_scans->setText(QString::number(m_hunt->scans()));
    m_kills->setText(QString::number(m_hunt->kills()));
    if (!tick.failures.isEmpty()) {
        QString text = tick.failures.front();
        if (tick.failures.size() > 1)
            text += tr(" (und %1 weitere)").arg(tick.failures.size() - 1);
        m_status->setText(text);
    }
}

void ShooterWindow::setListOpen(bool open) {
    m_listPanel->setVisible(open);
    m_openList->setVisible(!open);
    if (open) {
        refreshList();
        resize(width(), qMax(height(), sizeHint().height()));
    } else {
        // Folded, the window shrinks to the hunt's own controls.
        layout()->activate();
        resize(width(), minimumSizeHint().height());
    }
}

bool ShooterWindow::isListOpen() const {
    return m_listPanel->isVisibleTo(this);
}

void ShooterWindow::refreshList() {
    QList<ProcessEntry> processes = m_table->listProcesses();
    sortByName(processes);
    m_processes->clear();
    for (const ProcessEntry& process : std::as_const(processes)) {
        auto* item = new QListWidgetItem(process.name, m_processes);
        item->setData(Qt::UserRole, process.pid);
        item->setToolTip(tr("Prozessnummer %1").arg(process.pid));
    }
}

void ShooterWindow::showWindowTitle() {
    const QListWidgetItem* item = m_processes->currentItem();
    if (!item)
        return;
    const qint64 pid = item->data(Qt::UserRole).toLongLong();
    m_status->setText(tr("%1, Prozessnummer %2").arg(item->text()).arg(pid));
    const WindowTitleLookup lookup = windowTitleOfProcess(pid);
    if (!lookup.desktopTells)
        m_windowTitle->setText(QString::fromUtf16(kNoWindowTitles));
    else if (lookup.title)
        m_windowTitle->setText(*lookup.title);
    // A process without a window leaves the title of the last one standing.
}

void ShooterWindow::closeEvent(QCloseEvent* event) {
    m_hunt->stop();
    if (!saveHuntPrefix(m_prefix->text()))
        Dialogs::information(this, tr("Die Einstellungen konnten nicht gespeichert werden."));
    QWidget::closeEvent(event);
}

} // namespace quenfor
