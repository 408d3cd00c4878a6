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

qsizetype HabitDays::currentStreak(const Habit &habit, QDate today)
{
    QDate cursor = isDone(habit, today) ? today : today.addDays(-1);
    qsizetype days = 0;
    for (; isDone(habit, cursor); cursor = cursor.addDays(-1))
        ++days;
    return days;
}

qsizetype HabitDays::weeklyCount(const Habit &habit, QDate today)
{
    return std::ranges::count_if(OVDate::days(OVDate::startOfWeek(today), today),
                                 [&habit](QDate day) { return isDone(habit, day); });
}
