#include "Features/Habits/HabitRow.h"

#include "Foundation/LineText.h"
#include "Support/HabitDays.h"
#include "Support/OVDate.h"

#include <QCoreApplication>

namespace
{
struct HabitText {
    Q_DECLARE_TR_FUNCTIONS(HabitText)
};

QList<HabitDay> week(const Habit &habit, QDate today)
{
    const QDate sunday = OVDate::startOfWeek(today);
    QList<HabitDay> days;
    for (int i = 0; i < 7; ++i) {
        const QDate day = sunday.addDays(i);
        const bool isDone = habit.completions.contains(OVDate::dayKey(day));
        const QString name = isDone ? HabitText::tr("%1, done") : HabitText::tr("%1, not done");
        days.append({.id = i,
                     .letter = OVDate::weekdayNarrow(day),
                     .name = name.arg(OVDate::longDate(day)),
                     .isDone = isDone,
                     .isToday = day == today,
                     .isFuture = day > today});
    }
    return days;
}
} // namespace

HabitRow HabitRow::of(const Habit &habit, QDate today)
{
    return {.id = habit.id,
            .name = LineText::shown(habit.name),
            .emoji = LineText::shown(habit.emoji),
            .accent = AccentShades::of(habit.accent),
            .isDoneToday = habit.completions.contains(OVDate::dayKey(today)),
            .streak = int(HabitDays::currentStreak(habit, today)),
            .weeklyCount = int(HabitDays::weeklyCount(habit, today)),
            .target = int(habit.targetPerWeek),
            .days = week(habit, today)};
}

HabitRow HabitRow::prompt()
{
    static const QUuid id(QStringLiteral("{5D2F6C0A-0E56-4A57-9A0E-2B1B8E1C77D4}"));
    return {.id = id, .isPrompt = true};
}

QString HabitRow::kind() const
{
    return isPrompt ? QStringLiteral("prompt") : QStringLiteral("habit");
}

QString HabitRow::weekText() const
{
    return HabitText::tr("%1/%2 this week").arg(weeklyCount).arg(target);
}
