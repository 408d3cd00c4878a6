#include "SamplePractice.h"

#include "Store/HabitOperations.h"
#include "Store/WorkspaceStore.h"
#include "Support/OVDate.h"

using namespace Qt::StringLiterals;

namespace
{
Timestamp noon(const WorkspaceStore &store, int daysAgo)
{
    return OVDate::startOfDay(store.clock().today().addDays(-daysAgo), store.clock().timeZone()) +
           std::chrono::hours(12);
}

void addHabits(WorkspaceStore &store, int count)
{
    const QStringList names{u"Drink water"_s,       u"Read twenty pages"_s, u"Walk after lunch"_s,
                            u"Stretch"_s,           u"Practise scales"_s,   u"Tidy the desk"_s,
                            u"Call someone dear"_s, u"Early to bed"_s};
    const QStringList emoji{u"💧"_s, u"📚"_s, u"🚶"_s, u"🧘"_s, u"🎸"_s, u"🧹"_s, u"💪"_s, u"🌙"_s};
    const QDate today = store.clock().today();
    for (int i = 0; i < count; ++i) {
        const int kind = i % int(names.size());
        const auto accents = enumCases<AccentPalette>();
        const auto habit = HabitOperations::create(store, names.at(kind), emoji.at(kind),
                                                   accents[std::size_t(i) % accents.size()].value, 1 + i % 7);
        for (int day = i % 2; day < 4 + 3 * i; day += 1 + i % 2)
            HabitOperations::toggle(store, *habit, today.addDays(-day));
    }
}

void addTask(WorkspaceStore &store, TaskStatus status, int daysAgo, const std::optional<QUuid> &project = {})
{
    TaskItem task{.id = QUuid::createUuid(), .title = u"Write the next chapter"_s, .status = status};
    task.projectID = project;
    task.createdDate = task.updatedDate = noon(store, daysAgo);
    if (status == TaskStatus::done)
        task.completedDate = task.updatedDate;
    store.add(task);
}

void addProjects(WorkspaceStore &store, int count)
{
    const QStringList names{u"Launch of the journal"_s, u"Kitchen garden"_s, u"Grant application"_s,
                            u"A project with a name that is rather too long for the place it gets"_s};
    for (int i = 0; i < count; ++i) {
        const Project project{.id = QUuid::createUuid(), .name = names.at(i % names.size())};
        store.add(project);
        for (int task = 0; task < 5; ++task)
            addTask(store, task < i % 6 ? TaskStatus::done : TaskStatus::todo, (3 * i + task) % 14,
                    project.id);
    }
}

void addPages(WorkspaceStore &store, int daysAgo, int count)
{
    for (int i = 0; i < count; ++i)
        store.add(Page{.id = QUuid::createUuid(), .createdDate = noon(store, daysAgo)});
}

void addEvents(WorkspaceStore &store, int monthsAgo, int count)
{
    const QDate first = OVDate::startOfMonth(store.clock().today().addMonths(-monthsAgo));
    for (int i = 0; i < count; ++i)
        store.add(CalendarEvent{.id = QUuid::createUuid(),
                                .title = u"Rehearsal"_s,
                                .date = OVDate::startOfDay(first.addDays(i % 28), store.clock().timeZone())});
}

void addWork(WorkspaceStore &store, int projects, int habits)
{
    const Action action(store, QString());
    addProjects(store, projects);
    addHabits(store, habits);
    for (int day = 0; day < 14; ++day) {
        for (int i = 0; i < (day * 5) % 7; ++i)
            addTask(store, TaskStatus::done, day);
        addPages(store, day, (day * 3) % 5);
    }
    for (int i = 0; i < 6; ++i)
        addTask(store, TaskStatus::inProgress, 0);
    for (int month = 0; month < 6; ++month)
        addEvents(store, month, (month * 7) % 11 + 2);
}
} // namespace

void SamplePractice::threeHabits(WorkspaceStore &store)
{
    addHabits(store, 3);
}

void SamplePractice::fortyHabits(WorkspaceStore &store)
{
    const Action action(store, QString());
    addHabits(store, 40);
}

void SamplePractice::ordinary(WorkspaceStore &store)
{
    addWork(store, 4, 5);
}

void SamplePractice::crowded(WorkspaceStore &store)
{
    addWork(store, 60, 20);
}

void SamplePractice::single(WorkspaceStore &store)
{
    addTask(store, TaskStatus::done, 0);
    addPages(store, 3, 1);
    addEvents(store, 0, 1);
    store.add(Project{.id = QUuid::createUuid(), .name = u"Garden"_s});
    addHabits(store, 1);
}

void SamplePractice::huge(WorkspaceStore &store)
{
    const Action action(store, QString());
    for (int i = 0; i < 54'321; ++i)
        addTask(store, i % 3 ? TaskStatus::done : TaskStatus::todo, i % 100 ? 0 : i % 14);
    addPages(store, 2, 12'345);
    addEvents(store, 1, 23'456);
    addEvents(store, 0, 7);
    addHabits(store, 2);
}
