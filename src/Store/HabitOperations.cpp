#include "Store/HabitOperations.h"

#include "Support/HabitDays.h"
#include "Support/OVDate.h"

void HabitOperations::toggle(WorkspaceStore &store, const QUuid &habitID, Timestamp moment)
{
    const Action action(store, ActionText::tr("Change Habit"));
    store.change<Habit>(habitID, [&](Habit &habit) {
        const QString day = OVDate::dayKey(moment, store.clock().timeZone());
        if (habit.completions.erase(day) == 0)
            habit.completions.insert(day);
    });
}

qsizetype HabitOperations::doneToday(const WorkspaceStore &store)
{
    const QString today = OVDate::dayKey(store.now(), store.clock().timeZone());
    return std::ranges::count_if(store.list<Habit>(),
                                 [&today](const Habit &habit) { return habit.completions.contains(today); });
}

qsizetype HabitOperations::bestStreak(const WorkspaceStore &store)
{
    const QDate today = store.clock().today();
    qsizetype best = 0;
    for (const Habit &habit : store.list<Habit>())
        best = std::max(best, HabitDays::currentStreak(habit, today));
    return best;
}
