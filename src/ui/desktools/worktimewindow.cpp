#include "ui/desktools/worktimewindow.h"

#include "desktools/worktimesettings.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

const QColor kTodayColour(255, 128, 128);

QString dayFieldName(int day) {
    return u"txt_woche(%1)"_s.arg(day);
}

QLabel* rightAligned(QLabel* label) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

WorkTimeWindow::WorkTimeWindow(QWidget* parent, Clock clock)
    : QWidget(parent, Qt::Window), m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentDateTime)) {
    setObjectName(u"frmZeit"_s);
    setWindowTitle(tr("Arbeitszeitplaner"));
    buildWidgets();

    const WorkTimeSettings settings = WorkTimeSettings::load();
    m_arriveHour->setText(settings.day.arriveHour);
    m_arriveMinute->setText(settings.day.arriveMinute);
    m_leaveHour->setText(settings.day.leaveHour);
    m_leaveMinute->setText(settings.day.leaveMinute);
    m_pause->setText(settings.day.pauseMinutes);
    m_target->setText(settings.day.targetHours);
    for (int i = 0; i < kWorkDays; ++i)
        m_days[i]->setText(settings.week[i]);

    showClock();
    calculateWeek();
    calculateDay();
    m_clockTimer = new QTimer(this);
    m_clockTimer->setInterval(1000);
    connect(m_clockTimer, &QTimer::timeout, this, &WorkTimeWindow::showClock);
    m_clockTimer->start();
}

QLabel* WorkTimeWindow::clickableLabel(const QString& name, const QString& caption, const QString& hint) {
    auto* label = new QLabel(caption, this);
    label->setObjectName(name);
    label->setCursor(Qt::PointingHandCursor);
    label->installEventFilter(this);
    QFont font = label->font();
    font.setUnderline(true);
    label->setFont(font);
    m_hints->add(label, hint);
    return label;
}

void WorkTimeWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    m_time = new QLabel(this);
    m_time->setObjectName(u"lbl_Uhrzeit"_s);
    QFont clockFont = m_time->font();
    clockFont.setPointSizeF(clockFont.pointSizeF() * 1.6);
    clockFont.setBold(true);
    m_time->setFont(clockFont);
    m_time->setAlignment(Qt::AlignCenter);

    // The day: arrival, leaving, pause and target give the difference.
    m_arrival = clickableLabel(u"Label1"_s, tr("kommt"), tr("aktuelle Uhrzeit für Ankunft eintragen"));
    m_leaving = clickableLabel(u"Label2"_s, tr("geht"), tr("aktuelle Uhrzeit für Verlassen eintragen"));
    m_arriveHour = numberField(u"kommt_h"_s, this, 4);
    m_arriveMinute = numberField(u"kommt_min"_s, this, 4);
    m_leaveHour = numberField(u"geht_h"_s, this, 4);
    m_leaveMinute = numberField(u"geht_min"_s, this, 4);
    m_pause = numberField(u"pause_min"_s, this, 4);
    m_target = numberField(u"Arbeitszeit"_s, this, 4);
    m_difference = numberField(u"diff_h"_s, this, 8);
    m_difference->setReadOnly(true);
    for (QLineEdit* field : {m_arriveHour, m_arriveMinute, m_leaveHour, m_leaveMinute, m_pause, m_target}) {
        connect(field, &QLineEdit::textEdited, this, &WorkTimeWindow::calculateDay);
        connect(field, &QLineEdit::returnPressed, this, &WorkTimeWindow::enterToday);
    }
    auto* enter = namedButton(u"cmd_calc"_s, tr("Eintrag für heute"), this);
    m_hints->add(enter, tr("Eintrag für heute"));
    connect(enter, &QPushButton::clicked, this, &WorkTimeWindow::enterToday);

    auto* day = new QGridLayout;
    day->addWidget(new QLabel(tr("Stunde"), this), 0, 1);
    day->addWidget(new QLabel(tr("Minute"), this), 0, 2);
    day->addWidget(m_arrival, 1, 0);
    day->addWidget(m_arriveHour, 1, 1);
    day->addWidget(m_arriveMinute, 1, 2);
    day->addWidget(m_leaving, 2, 0);
    day->addWidget(m_leaveHour, 2, 1);
    day->addWidget(m_leaveMinute, 2, 2);
    day->addWidget(new QLabel(tr("Pause (Minuten)"), this), 3, 0);
    day->addWidget(m_pause, 3, 2);
    day->addWidget(new QLabel(tr("Arbeitszeit (Stunden)"), this), 4, 0);
    day->addWidget(m_target, 4, 2);
    day->addWidget(boldLabel(tr("Differenz (Stunden)"), this), 5, 0);
    day->addWidget(m_difference, 5, 1, 1, 2);
    day->addWidget(enter, 6, 0, 1, 3);
    day->setColumnStretch(3, 1);

    // The week: each day's difference in hours and minutes, and the sum.
    m_week = boldLabel(tr("Woche"), this);
    m_week->setObjectName(u"Label5"_s);
    m_week->installEventFilter(this);
    m_hints->add(m_week, tr("Mit einem Doppelklick auf 'Woche' können Sie alle Einträge löschen"));
    auto* week = new QGridLayout;
    week->addWidget(m_week, 0, 0);
    week->addWidget(new QLabel(tr("Stunden"), this), 0, 1);
    week->addWidget(rightAligned(new QLabel(tr("Minuten"), this)), 0, 2);
    for (int i = 0; i < kWorkDays; ++i) {
        m_dayLabels[i] = new QLabel(weekdayNames()[i], this);
        m_dayLabels[i]->setObjectName(u"lbl_tag(%1)"_s.arg(i));
        m_dayLabels[i]->setContentsMargins(4, 2, 4, 2);
        m_days[i] = numberField(dayFieldName(i), this, 8);
        connect(m_days[i], &QLineEdit::textEdited, this, &WorkTimeWindow::calculateWeek);
        m_minutes[i] = rightAligned(new QLabel(this));
        m_minutes[i]->setObjectName(u"lbl_Minuten(%1)"_s.arg(i));
        week->addWidget(m_dayLabels[i], i + 1, 0);
        week->addWidget(m_days[i], i + 1, 1);
        week->addWidget(m_minutes[i], i + 1, 2);
    }
    m_total = numberField(u"gesamt"_s, this, 8);
    m_total->setReadOnly(true);
    m_totalMinutes = rightAligned(new QLabel(this));
    m_totalMinutes->setObjectName(u"lbl_gesamtmin"_s);
    week->addWidget(boldLabel(tr("Summe"), this), kWorkDays + 1, 0);
    week->addWidget(m_total, kWorkDays + 1, 1);
    week->addWidget(m_totalMinutes, kWorkDays + 1, 2);
    week->setColumnMinimumWidth(2, fontMetrics().horizontalAdvance(u"-0000,0"_s) + 8);
    week->setColumnStretch(3, 1);

    auto* exit = namedButton(u"Image1"_s, tr("Schließen"), this);
    m_hints->add(exit, tr("Arbeitszeit-Tool verlassen"));
    connect(exit, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_time);
    layout->addLayout(day);
    layout->addWidget(separator(this));
    layout->addLayout(week);
    layout->addStretch(1);
    layout->addLayout(statusRow(m_status, exit));
    highlightToday();
    // Wide enough that a message in the status line stays readable.
    resize(fontMetrics().horizontalAdvance(u"Im Feld „kommt Minute“ steht keine Zahl:"_s) + 120, sizeHint().height());
}

void WorkTimeWindow::showClock() {
    const QDateTime now = m_clock();
    m_time->setText(now.toString(u"HH:mm:ss"_s));
    // A window left open over midnight moves the highlight to the new day.
    if (now.date() != m_shownDate)
        highlightToday();
}

void WorkTimeWindow::highlightToday() {
    m_shownDate = m_clock().date();
    m_today = workdayIndex(m_shownDate);
    for (int i = 0; i < kWorkDays; ++i) {
        QLabel* label = m_dayLabels[i];
        const bool today = m_today == i;
        label->setAutoFillBackground(today);
        QPalette palette = label->palette();
        palette.setColor(QPalette::Window, today ? kTodayColour : QPalette().color(QPalette::Window));
        label->setPalette(palette);
    }
}

WorkDayInput WorkTimeWindow::dayInput() const {
    return {m_arriveHour->text(),  m_arriveMinute->text(), m_leaveHour->text(),
            m_leaveMinute->text(), m_pause->text(),        m_target->text()};
}

WeekTexts WorkTimeWindow::weekTexts() const {
    WeekTexts texts;
    for (int i = 0; i < kWorkDays; ++i)
        texts[i] = m_days[i]->text();
    return texts;
}

bool WorkTimeWindow::calculateDay() {
    const WorkDayResult result = calculateWorkDay(dayInput());
    m_difference->setText(result.difference);
    showRed(m_difference, result.negative);
    m_dayError = result.error;
    showError();
    return result.ok;
}

bool WorkTimeWindow::calculateWeek() {
    const WorkWeekResult result = calculateWorkWeek(weekTexts());
    for (int i = 0; i < kWorkDays; ++i)
        m_minutes[i]->setText(result.minutes[i]);
    m_total->setText(result.total);
    showRed(m_total, result.negative);
    m_totalMinutes->setText(result.totalMinutes);
    m_weekError = result.error;
    showError();
    return result.ok;
}

void WorkTimeWindow::showError() {
    m_status->setText(m_dayError.isEmpty() ? m_weekError : m_dayError);
}

void WorkTimeWindow::enterToday() {
    if (!calculateDay()) {
        Dialogs::information(this, m_dayError);
        return;
    }
    int day = 0; // no highlighted label: Monday, where the search starts
    if (m_today) {
        day = *m_today;
    } else if (Dialogs::question(this, weekendEntryQuestion(m_shownDate)) != Dialogs::Answer::Yes) {
        return;
    }
    m_days[day]->setText(m_difference->text());
    if (!calculateWeek())
        Dialogs::information(this, m_weekError);
}

void WorkTimeWindow::takeArrivalTime() {
    const QTime now = m_clock().time();
    m_arriveHour->setText(QString::number(now.hour()));
    m_arriveMinute->setText(QString::number(now.minute()));
    calculateDay();
}

void WorkTimeWindow::takeLeavingTime() {
    const QTime now = m_clock().time();
    m_leaveHour->setText(QString::number(now.hour()));
    m_leaveMinute->setText(QString::number(now.minute()));
    calculateDay();
}

void WorkTimeWindow::askToClearWeek() {
    if (Dialogs::question(this, clearWeekQuestion()) != Dialogs::Answer::Yes)
        return;
    for (QLineEdit* field : m_days)
        field->clear();
    calculateWeek();
}

bool WorkTimeWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto isLeft = [event] { return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton; };
    if (event->type() == QEvent::MouseButtonRelease && isLeft()) {
        if (watched == m_arrival)
            takeArrivalTime();
        else if (watched == m_leaving)
            takeLeavingTime();
    } else if (event->type() == QEvent::MouseButtonDblClick && watched == m_week && isLeft()) {
        askToClearWeek();
    }
    return QWidget::eventFilter(watched, event);
}

void WorkTimeWindow::closeEvent(QCloseEvent* event) {
    m_clockTimer->stop();
    WorkTimeSettings settings{dayInput(), weekTexts()};
    if (!settings.save())
        Dialogs::information(this, tr("Die Einstellungen des Arbeitszeitplaners konnten nicht gespeichert werden."));
    QWidget::closeEvent(event);
}

} // namespace quenfor
