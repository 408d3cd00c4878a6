#include "Support/HabitDays.h"

#include "Support/OVDate.h"

#include <algorithm>

namespace
{
bool isDone(const Habit &habit, QDate day)
{
    return habit.completions.contains(OVDate::dayKey(day));
}
} // namespace

// Day keys sort as their days do, so one walk from today to the past sees each day of the streak once.
qsizetype HabitDays::currentStreak(const Habit &habit, QDate today)
{
    QString key = OVDate::dayKey(today);
    QDate cursor = today;
    auto day = std::make_reverse_iterator(habit.completions.upper_bound(key));
    const auto isAtCursor = [&] {
        // What is no day key may stand between two days.
        while (day != habit.completions.rend() && *day > key)
            ++day;
        return day != habit.completions.rend() && *day == key;
    };
    const auto stepBack = [&] {
        cursor = cursor.addDays(-1);
        key = OVDate::dayKey(cursor);
    };
    if (!isAtCursor())
        stepBack();
    qsizetype days = 0;
    for (; isAtCursor(); stepBack())
        ++days;
    return days;
}

qsizetype HabitDays::weeklyCount(const Habit &habit, QDate today)
{
    return std::ranges::count_if(OVDate::days(OVDate::startOfWeek(today), today),
                                 [&habit](QDate day) { return isDone(habit, day); });
}
