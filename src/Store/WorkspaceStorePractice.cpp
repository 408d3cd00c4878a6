#include "Store/WorkspaceStore.h"
#include "Support/HabitDays.h"
#include "Support/OVDate.h"

#include <algorithm>

void WorkspaceStore::toggleHabit(const QUuid &habitID, Timestamp moment)
{
    change<Habit>(habitID, [&](Habit &habit) {
        const QString day = OVDate::dayKey(moment, clock().timeZone());
        if (habit.completions.erase(day) == 0)
            habit.completions.insert(day);
    });
}

qsizetype WorkspaceStore::habitsDoneToday() const
{
    const QString today = OVDate::dayKey(now(), clock().timeZone());
    return std::ranges::count_if(habits(),
                                 [&today](const Habit &habit) { return habit.completions.contains(today); });
}

qsizetype WorkspaceStore::bestHabitStreak() const
{
    const QDate today = clock().today();
    qsizetype best = 0;
    for (const Habit &habit : habits())
        best = std::max(best, HabitDays::currentStreak(habit, today));
    return best;
}

Book WorkspaceStore::addBook(const Book &book)
{
    const auto known = std::ranges::find(books(), book.gutenbergID, &Book::gutenbergID);
    Book stored = book;
    if (known == books().end()) {
        add(stored);
        return stored;
    }
    stored.id = known->id;
    replace(stored);
    scheduleSave();
    return stored;
}

void WorkspaceStore::removeBook(const QUuid &bookID)
{
    bookLibrary().deleteText(bookID);
    erase<Book>(bookID);
}
