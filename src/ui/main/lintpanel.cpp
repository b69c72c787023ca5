#include "ui/main/lintpanel.h"

#include "common/programfolders.h"
#include "document/configdocument.h"
#include "lint/linttexts.h"
#include "settings/mainsettings.h"
#include "ui/main/lintfindingmodel.h"
#include "ui/widgets/backgroundjob.h"
#include "ui/widgets/statushints.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <atomic>

using namespace Qt::StringLiterals;

namespace quenfor {

// What the worker thread and the window share: the worker writes, the window reads when the
// worker has ended.
struct LintPanel::Job {
    std::atomic<int> percent{0};
    std::atomic<bool> cancel{false};
    LintResult result;
};

LintPanel::LintPanel(ConfigDocument* document, QWidget* parent)
    : QWidget(parent), m_document(document), m_model(new LintFindingModel(this)) {
    setObjectName(u"frm_pruefen"_s);

    m_summary = new QLabel(this);
    m_summary->setObjectName(u"lbl_befunde"_s);
    m_summary->setWordWrap(true);
    m_recheck = new QPushButton(QString::fromUtf16(kLintRecheck), this);
    m_recheck->setObjectName(u"cmd_neu_pruefen"_s);

    m_table = new QTableView(this);
    m_table->setObjectName(u"List_befunde"_s);
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 6);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setColumnWidth(0, m_table->fontMetrics().horizontalAdvance(u"0000000"_s) + 12);

    auto* top = new QHBoxLayout;
    top->addWidget(m_summary, 1);
    top->addWidget(m_recheck);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(top);
    layout->addWidget(m_table, 1);

    m_progressTimer = new QTimer(this);
    m_progressTimer->setInterval(100);
    connect(m_progressTimer, &QTimer::timeout, this, &LintPanel::showProgress);
    connect(m_recheck, &QPushButton::clicked, this, [this] { isRunning() ? cancel() : check(); });
    connect(m_table, &QTableView::clicked, this, &LintPanel::choose);
    connect(m_table, &QTableView::activated, this, &LintPanel::choose);

    connect(m_document, &ConfigDocument::linesInserted, this, &LintPanel::documentChanged);
    connect(m_document, &ConfigDocument::linesRemoved, this, &LintPanel::documentChanged);
    connect(m_document, &ConfigDocument::linesChanged, this, &LintPanel::documentChanged);
    connect(m_document, &ConfigDocument::resetDone, this, [this] {
        // A new file or a tool that rebuilt the list: the old findings say nothing about it.
        if (isVisible())
            check();
        else
            documentChanged();
    });
}

LintPanel::~LintPanel() {
    if (m_job)
        m_job->cancel = true; // the worker ends soon and unheard
}

void LintPanel::registerHints(StatusHints& hints) {
    hints.add(m_recheck, QString::fromUtf16(kLintRecheckHint));
    hints.add(m_table->viewport(), QString::fromUtf16(kLintListHint));
}

QString LintPanel::summary() const {
    return m_summary->text();
}

void LintPanel::check() {
    if (m_job) {
        m_again = true;
        m_job->cancel = true;
        return;
    }
    auto job = std::make_shared<Job>();
    m_job = job;
    m_stale = false;
    LintOptions options;
    options.dataFolder = programDataFolder();
    options.encoding = {settingValue(Setting::Codepage), false};
    // The button's hint promises it: a search.pro is checked for folders that do not exist. The
    // check runs in the background and can be stopped, so slow network folders hold nothing up.
    options.checkPaths = true;
    options.release = settingValue(Setting::Zielversion);
    const QStringList lines = m_document->lines(); // shared, not copied: the worker reads its own
    const QString fileName = m_document->fileName();
    setRunning(true);
    runInBackground(
        this,
        [job, lines, fileName, options] {
            job->result = lintLines(lines, fileName, options, [&job = *job](int percent) {
                job.percent = percent;
                return !job.cancel;
            });
        },
        [this, job] {
            if (m_job == job)
                finish();
        });
}

void LintPanel::cancel() {
    if (!m_job)
        return;
    m_again = false;
    m_job->cancel = true;
}

void LintPanel::finish() {
    const std::shared_ptr<Job> job = std::move(m_job);
    setRunning(false);
    if (m_again) {
        m_again = false;
        check();
        return;
    }
    if (job->result.cancelled) {
        m_model->setFindings({});
        m_summary->setText(QString::fromUtf16(kLintCancelled));
    } else {
        m_model->setFindings(std::move(job->result.findings));
        QStringList text = {findingCountText(m_model->rowCount())};
        text += job->result.notes;
        if (m_stale) // changed while the check ran
            text += QString::fromUtf16(kLintStale);
        m_summary->setText(text.join(u'\n'));
    }
    emit checked();
}

void LintPanel::showProgress() {
    if (m_job)
        m_summary->setText(lintProgressText(m_job->percent));
}

void LintPanel::setRunning(bool running) {
    m_recheck->setText(QString::fromUtf16(running ? kLintCancel : kLintRecheck));
    if (running) {
        m_summary->setText(lintProgressText(0));
        m_progressTimer->start();
    } else {
        m_progressTimer->stop();
    }
}

void LintPanel::documentChanged() {
    if (m_stale)
        return;
    m_stale = true;
    if (!m_job)
        m_summary->setText(m_summary->text() + u'\n' + QString::fromUtf16(kLintStale));
}

void LintPanel::choose(const QModelIndex& index) {
    if (!index.isValid())
        return;
    const LintFinding& finding = m_model->findingAt(index.row());
    emit findingChosen(finding.line - 1, finding.message);
}

} // namespace quenfor
