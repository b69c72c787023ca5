#pragma once

#include "desktools/worktime.h"

#include <QDateTime>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QTimer;

namespace quenfor {

class StatusHints;

// The "Arbeitzeitplaner": how far today's working time lies above or below the daily target,
// kept for each weekday Monday to Friday and summed for the week. The difference follows every
// edit; "Eintrag für heute" writes it into today's day field. Settings live under "Zeit": read
// when the window is made, stored when it closes.
class WorkTimeWindow : public QWidget {
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;
    // `clock` gives the current time (tests fix it); empty means the system clock.
    explicit WorkTimeWindow(QWidget* parent = nullptr, Clock clock = {});

    // The day label that carries the highlight (today's weekday), none on a weekend.
    std::optional<int> highlightedDay() const { return m_today; }

    void enterToday();      // cmd_calc
    void takeArrivalTime(); // click on Label1
    void takeLeavingTime(); // click on Label2
    void askToClearWeek();  // double-click on Label5

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    QLabel* clickableLabel(const QString& name, const QString& caption, const QString& hint);
    void showClock();
    void highlightToday();
    WorkDayInput dayInput() const;
    WeekTexts weekTexts() const;
    // Both show their result, or the reason there is none in the status line; true when shown.
    bool calculateDay();
    bool calculateWeek();
    // The status line tells what keeps the day or the week from being calculated.
    void showError();

    Clock m_clock;
    std::optional<int> m_today;
    QDate m_shownDate;
    QString m_dayError;
    QString m_weekError;
    StatusHints* m_hints = nullptr;
    QTimer* m_clockTimer = nullptr;
    QLabel* m_time = nullptr;    // lbl_Uhrzeit
    QLabel* m_arrival = nullptr; // Label1
    QLabel* m_leaving = nullptr; // Label2
    QLabel* m_week = nullptr;    // Label5
    QLineEdit* m_arriveHour = nullptr;
    QLineEdit* m_arriveMinute = nullptr;
    QLineEdit* m_leaveHour = nullptr;
    QLineEdit* m_leaveMinute = nullptr;
    QLineEdit* m_pause = nullptr;
    QLineEdit* m_target = nullptr;
    QLineEdit* m_difference = nullptr; // diff_h
    std::array<QLabel*, kWorkDays> m_dayLabels{};
    std::array<QLineEdit*, kWorkDays> m_days{}; // txt_woche(i)
    std::array<QLabel*, kWorkDays> m_minutes{}; // lbl_Minuten(i)
    QLineEdit* m_total = nullptr;               // gesamt
    QLabel* m_totalMinutes = nullptr;           // lbl_gesamtmin
    QLabel* m_status = nullptr;
};

} // namespace quenfor
