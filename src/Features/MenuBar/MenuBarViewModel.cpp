#include "Features/MenuBar/MenuBarViewModel.h"

#include "Features/Tasks/TaskFilters.h"
#include "Foundation/LineText.h"
#include "Store/HabitOperations.h"
#include "Store/TaskOperations.h"
#include "Support/OrvelNavigation.h"

MenuBarViewModel::MenuBarViewModel(QObject *parent) : ViewModel(parent)
{
    follow<TaskItem, Habit>();
    followSettings();
    followDays();
}

void MenuBarViewModel::start()
{
    connect(&clock(), &Clock::ticked, this, [this] {
        if (m_shown.greeting != currentGreeting())
            requestRefresh();
    });
}

QString MenuBarViewModel::currentGreeting() const
{
    return store().settings().greeting(toDateTime(store().now(), clock().timeZone()).time().hour());
}

void MenuBarViewModel::refresh(const ChangeSet &)
{
    const AppSettings &settings = store().settings();
    Shown next{.icon = settings.workspaceIcon,
               .name = OrvelNavigation::windowTitle(settings),
               .greeting = currentGreeting(),
               .habitCount = int(HabitOperations::doneToday(store())),
               .listsTasks = settings.menuBarShowsTasks};
    const TaskDay day(clock());
    QList<MenuBarTask> due;
    for (const TaskItem &task : store().tasks()) {
        next.openCount += task.status != TaskStatus::done;
        if (TaskFilters::takes(TaskFilter::today, task, day))
            due.append({task.id, task.title});
    }
    m_tasks.setRows(due);
    m_shown = next;
    emit changed();
}

bool MenuBarViewModel::addTask(const QString &title)
{
    const QString trimmed = LineText::singleLine(title).trimmed();
    if (trimmed.isEmpty())
        return false;
    TaskOperations::create(store(), trimmed, TaskItem().priority, store().now());
    flush();
    return true;
}

void MenuBarViewModel::finishTask(const QUuid &taskID)
{
    TaskOperations::setStatus(store(), taskID, TaskStatus::done);
}
