#include "Store/HabitOperations.h"

#include "Support/HabitDays.h"
#include "Support/OVDate.h"

std::optional<QUuid> HabitOperations::create(WorkspaceStore &store, const QString &name, const QString &emoji,
                                             AccentPalette accent, qint64 targetPerWeek)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const Action action(store, ActionText::tr("New Habit"));
    const Timestamp now = store.now();
    const Habit habit{.id = store.makeId(),
                      .name = trimmed,
                      .emoji = emoji,
                      .accent = accent,
                      .targetPerWeek = std::clamp<qint64>(targetPerWeek, 1, maxTarget),
                      .sortOrder = secondsSince1970(now),
                      .createdDate = now};
    store.add(habit);
    return habit.id;
}

void HabitOperations::toggle(WorkspaceStore &store, const QUuid &habitID, QDate day)
{
    const Action action(store, ActionText::tr("Change Habit"));
    store.change<Habit>(habitID, [key = OVDate::dayKey(day)](Habit &habit) {
        if (habit.completions.erase(key) == 0)
            habit.completions.insert(key);
    });
}

void HabitOperations::toggle(WorkspaceStore &store, const QUuid &habitID, Timestamp moment)
{
    toggle(store, habitID, OVDate::day(moment, store.clock().timeZone()));
}

void HabitOperations::setTarget(WorkspaceStore &store, const QUuid &habitID, qint64 targetPerWeek)
{
    const Action action(store, ActionText::tr("Change Weekly Goal"));
    store.change<Habit>(habitID, [targetPerWeek](Habit &habit) {
        habit.targetPerWeek = std::clamp<qint64>(targetPerWeek, 1, maxTarget);
    });
}

void HabitOperations::remove(WorkspaceStore &store, const QUuid &habitID)
{
    const Action action(store, ActionText::tr("Delete Habit"));
    action.setMessage(ActionText::tr("Habit deleted"));
    store.erase<Habit>(habitID);
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
