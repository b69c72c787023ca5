#pragma once

#include "desktools/worktime.h"

namespace quenfor {

// The planner's settings (application "Zeit", section "Optionen"): the day's fields and the five
// day differences, read when its window opens and written when it closes. The defaults are the
// program's own: a 49-minute pause, every time field 7, every day 1.
struct WorkTimeSettings {
    WorkDayInput day;
    WeekTexts week;

    static WorkTimeSettings load();
    bool save() const; // false when the store could not be written
};

} // namespace quenfor
